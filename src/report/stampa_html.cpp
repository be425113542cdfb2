#include "report/stampa_html.h"

#include "export/celex.h"
#include "report/html.h"
#include "report/uscita_consegna.h"
#include "shell/consegna.h"
#include "shell/impostazioni.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// What differs between the two prints.
struct FormaStampa {
  QLatin1StringView file;  // before the delivery's name
  QLatin1StringView fine;  // of the closing message, before the delivery's name
  QLatin1StringView colonne;
  QLatin1StringView fonti;  // the statement behind its columns
  // Where the link of a source leads; nothing: the source has no line.
  QString (*collegamento)(const Recordset& fonte, const QString& indirizzo);
  Impostazione indirizzo;
};

QString CollegamentoCelex(const Recordset& fonte, const QString& indirizzo) {
  if (!fonte.Fields("Settore").Presente()) return {};
  const QString celex = NumeroCelex(LeggiDatiCelex(fonte));
  if (celex.isEmpty()) return {};
  return "<A HREF=\""_L1 + indirizzo + "/LexUriServ/LexUriServ.do?uri=CELEX:"_L1 +
         html::Attributo(celex) +
         ":IT:NOT\"><U><FONT SIZE=\"2\" COLOR=\"#0000ff\">[recupera via CELEX]"_L1;
}

// As a string between double quotes has it; the quotes that close it stand in the address itself.
QString TraVirgolette(QString valore) {
  return valore.replace("\\"_L1, "\\\\"_L1).replace("\""_L1, "\\\""_L1);
}

QString CollegamentoHudoc(const Recordset& fonte, const QString& indirizzo) {
  return "<A target=\"new\" HREF='"_L1 + indirizzo + "/eng#{\"docname\":[\""_L1 +
         html::Attributo(TraVirgolette(Parti(fonte.Fields("altro").Testo()))) +
         "\"]}'><U><FONT SIZE=\"2\" COLOR=\"#0000ff\">[recupera via HUDOC]"_L1;
}

constexpr FormaStampa kCelex = {
    "stampaHTML "_L1,
    "Fine stampa HTML (consegna "_L1,
    "TabDocumento.IDDocumento, TabFonte.*, tabFonteCom.FonteCom, tabFonteCom.Settore, "
    "tabFonteCom.Codice, tabFonteCom.AnnoF "_L1,
    "FROM (TabFonte INNER JOIN tabFonteCom ON TabFonte.Fonte = tabFonteCom.IDFonteCom) "
    "INNER JOIN (TabDocumento INNER JOIN LegameDocFonte ON TabDocumento.IDDocumento = "
    "LegameDocFonte.IDDoc) ON TabFonte.IDFonte = LegameDocFonte.IDFnt "
    "WHERE ((TabFonte.TP)=\"NIC\" Or (TabFonte.TP)=\"GEC\")"_L1,
    CollegamentoCelex,
    Impostazione::IndirizzoCelex};

constexpr FormaStampa kHudoc = {
    "stampaHTML_GEI "_L1,
    "Fine stampa HTML_ GEI (consegna "_L1,
    "TabDocumento.IDDocumento, TabFonte.*  "_L1,
    "FROM TabDocumento, LegameDocFonte, TabFonte "
    "WHERE TabDocumento.IDDocumento = LegameDocFonte.IDDoc and TabFonte.IDFonte = "
    "LegameDocFonte.IDFnt and TabFonte.Fonte=2 and TabFonte.TP=\"GEI\""_L1,
    CollegamentoHudoc,
    Impostazione::IndirizzoHudoc};

void StampaIntestazione(FileTesto& file, const QString& sigla) {
  const QString titolo = "Consegna "_L1 + html::Testo(sigla);
  for (const QString& riga : {u"<HTML>"_s, u"<HEAD>"_s, u"<TITLE>%1</TITLE>"_s, u"</HEAD>"_s,
                              u"<BODY>"_s, u"<h1>%1</h1>"_s}) {
    file.Print(QString(riga).replace("%1"_L1, titolo));
  }
}

void StampaDocumento(FileTesto& file, const Database& archivio, const Campo& documento) {
  file.Print(u"<hr size=\"1\"/>"_s);
  file.Print("<h2>Record: "_L1 + documento.Testo() + "</h2>"_L1);
  const Recordset titolo = archivio.OpenRecordset(
      u"SELECT TabDocumento.IDDocumento, TabTesto.Testo, LegameDocTesto.Tipo "
      "FROM TabTesto INNER JOIN (TabDocumento INNER JOIN LegameDocTesto ON "
      "TabDocumento.IDDocumento = LegameDocTesto.IDDoc) ON TabTesto.IDTesto = "
      "LegameDocTesto.IDTesto "
      "WHERE (((LegameDocTesto.Tipo)=\"0\")) and TabDocumento.IDDocumento = ?"_s,
      {documento});
  if (!titolo.Eof())
    file.Print("<h3>"_L1 + html::Testo(titolo.Fields("testo").Testo()) + "</h3>"_L1);
}

void StampaFonti(StatoGlobale& stato, Dialoghi& dialoghi, const FormaStampa& forma,
                 FileTesto& file) {
  constexpr int kPasso = 100;
  Recordset fonti = stato.DbArchivio.OpenRecordset("SELECT "_L1 + forma.colonne + forma.fonti +
                                                   " ORDER BY TabDocumento.IDDocumento"_L1);
  if (fonti.Eof()) return;
  const QString indirizzo = LeggiImpostazione(stato.CartellaApplicazione, forma.indirizzo);
  const int totale = stato.DbArchivio.Conta(forma.fonti);
  StampaIntestazione(file, stato.SiglaConsegna);
  Campo precedente;
  for (int fatto = 0; !fonti.Eof(); fonti.MoveNext(), ++fatto) {
    if (fatto % kPasso == 0) dialoghi.Avanzamento(u"Stampa HTML, fonti"_s, fatto, totale);
    const Campo documento = fonti.Fields("IDDocumento");
    if (documento != precedente) StampaDocumento(file, stato.DbArchivio, documento);
    precedente = documento;
    const QString collegamento = forma.collegamento(fonti, indirizzo);
    if (collegamento.isEmpty()) continue;
    file.Print(html::Testo(fonti.Fields("testo").Testo()) + " ---> "_L1 + collegamento +
               "</U></FONT></A><br>"_L1);
  }
  file.Print(u"</BODY>"_s);
  file.Print(u"</HTML>"_s);
}

// The delivery's data are read already.
void Stampa(StatoGlobale& stato, Dialoghi& dialoghi, const FormaStampa& forma) {
  Clessidra clessidra(dialoghi);
  FileTesto file = ApriUscita(stato, forma.file + stato.SiglaConsegna + ".htm"_L1);
  StampaFonti(stato, dialoghi, forma, file);
  PartiConsegna(stato, file);
  Concludi(file, clessidra, dialoghi, forma.fine + stato.SiglaConsegna + QLatin1Char(')'));
}

}  // namespace

void StampaHTMLCelex(StatoGlobale& stato, Dialoghi& dialoghi) {
  LeggiInfoConsegna(stato);
  RegistraUsoFunzione(stato, u"2"_s);
  Stampa(stato, dialoghi, kCelex);
}

void StampaHTMLHudoc(StatoGlobale& stato, Dialoghi& dialoghi) {
  LeggiInfoConsegna(stato);
  Stampa(stato, dialoghi, kHudoc);
}

QString Parti(const QString& altro) {
  QString parti = altro.mid(altro.indexOf(QLatin1Char('(')) + 1);
  parti.truncate(parti.indexOf(" c. "_L1) + 1);
  return parti.replace("et al."_L1, "and others"_L1, Qt::CaseInsensitive)
      .replace(" e "_L1, " and "_L1, Qt::CaseInsensitive);
}

}  // namespace torvi
