#include "report/conta_tabs.h"
#include "report/html.h"
#include "report/prospetto.h"
#include "report/uscita_consegna.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

void StampaInizio(FileTesto& uscita, const QString& sigla) {
  uscita.Print(u"<HTML>"_s);
  uscita.Print("<TITLE>Consegna "_L1 + sigla + "</TITLE>"_L1);
  uscita.Print(u"<BODY>"_s);
  uscita.Print("<H1>Prospetto consegna: "_L1 + sigla + "</H1>"_L1);
}

void StampaIntestazione(FileTesto& uscita) {
  uscita.Print(u"<TABLE BORDER=\"1\" WIDTH=\"100%\">"_s);
  uscita.Print(u"<TR BGCOLOR=\"GRAY\">"_s);
  QStringList colonne = {u"Titolo"_s, u"CPer"_s, u"Anno"_s, u"Fasc."_s, u"Tot. doc."_s};
  for (const char* tAbs : kTAbs) colonne += QString::fromLatin1(tAbs);
  for (const QString& colonna : colonne) uscita.Print("<TH>"_L1 + colonna + "</TH>"_L1);
  uscita.Print(u"</TR>"_s);
}

// The sum, then each count.
void StampaConteggi(FileTesto& uscita, const ConteggiTAbs& conteggi, QLatin1StringView prima,
                    QLatin1StringView dopo) {
  const auto cella = [&](qint16 numero) {
    uscita.Print("<TD ALIGN=\"RIGHT\">"_L1 + prima + QString::number(numero) + dopo + "</TD>"_L1);
  };
  cella(Somma(conteggi));
  for (const qint16 conteggio : conteggi) cella(conteggio);
}

void StampaRiga(FileTesto& uscita, const Recordset& riga, const ConteggiTAbs& conteggi) {
  const QString titolo = riga.Fields("TitoloRivista")
                             .Testo()
                             .replace(QLatin1Char('<'), "&lt;"_L1)
                             .replace(QLatin1Char('>'), "&gt;"_L1);
  uscita.Print(u"<TR>"_s);
  for (const QString& valore :
       {titolo, riga.Fields("CPER").Testo(), riga.Fields("Anno").TestoOVuoto(),
        riga.Fields("Fascicolo").TestoOVuoto()}) {
    uscita.Print("<TD>"_L1 + valore + "</TD>"_L1);
  }
  StampaConteggi(uscita, conteggi, {}, {});
  uscita.Print(u"</TR>"_s);
}

ConteggiTAbs StampaRighe(const Database& archivio, Dialoghi& dialoghi, FileTesto& uscita) {
  ConteggiTAbs totali = {};
  Recordset riga = archivio.OpenRecordset(
      QStringLiteral("SELECT DISTINCT TabRifBibl.IDRivista, TabRifBibl.Fascicolo, "
                     "right(TabRifBibl.Data, 4) as Anno, TabRivista.CPER, TabRivista.TitoloRivista "
                     "FROM TabRivista, TabRifBibl, TabDocumento WHERE TabDocumento.IDRifBibl = "
                     "TABRifBibl.IDRifBibl AND TabRifBibl.IDRivista = TabRivista.IDRivista ORDER "
                     "BY TabRivista.CPER, right(TabRifBibl.Data, 4), TabRifBibl.Fascicolo"));
  for (int fatto = 0; !riga.Eof(); riga.MoveNext(), ++fatto) {
    if (fatto % 100 == 0) dialoghi.Avanzamento(QStringLiteral("Prospetto, fascicoli"), fatto, 0);
    const ConteggiTAbs conteggi =
        ContaTAbs(archivio, riga.Fields("IDRivista"), riga.Fields("Fascicolo").TestoOVuoto(),
                  riga.Fields("Anno").TestoOVuoto());
    for (std::size_t i = 0; i < totali.size(); ++i) {
      totali.at(i) = Intero16(totali.at(i) + conteggi.at(i));
    }
    StampaRiga(uscita, riga, conteggi);
  }
  return totali;
}

void StampaTotali(FileTesto& uscita, const ConteggiTAbs& totali) {
  uscita.Print(u"<TR BGCOLOR=\"GRAY\">"_s);
  uscita.Print(u"<TD COLSPAN=\"4\"><B>T O T A L I</B></TD>"_s);
  StampaConteggi(uscita, totali, "<B>"_L1, "</B>"_L1);
  uscita.Print(u"</TR>"_s);
  uscita.Print(u"</TABLE>"_s);
}

// A list of documents; nothing where there is none.
void StampaElenco(FileTesto& uscita, Recordset documenti, const QString& titolo) {
  if (documenti.Eof()) return;
  uscita.Print("<h4>ID documento/i "_L1 + titolo + ": "_L1);
  int quanti = 0;
  for (; !documenti.Eof(); documenti.MoveNext(), ++quanti) {
    uscita.Print((quanti == 0 ? ""_L1 : ", "_L1) + documenti.Fields("IDDoc").Testo());
  }
  uscita.Print(QLatin1Char('(') + QString::number(quanti) + " documento/i)</h4>"_L1);
}

}  // namespace

void ProspettoHTML(StatoGlobale& stato, Dialoghi& dialoghi) {
  Clessidra clessidra(dialoghi);
  LeggiInfoConsegna(stato);
  RegistraUsoFunzione(stato, QStringLiteral("6"));
  const Database& archivio = stato.DbArchivio;
  FileTesto uscita(
      FileUscita(stato.CartellaApplicazione, "prospetto "_L1 + stato.SiglaConsegna + ".html"_L1),
      Apertura::Scrittura);
  StampaInizio(uscita, html::Testo(stato.SiglaConsegna));
  StampaIntestazione(uscita);
  StampaTotali(uscita, StampaRighe(archivio, dialoghi, uscita));
  StampaElenco(uscita,
               archivio.OpenRecordset(QStringLiteral(
                   "select idDoc from legameDocTesto where Tipo = '8' order by IDDoc")),
               QStringLiteral("con 'English abstract'"));
  StampaElenco(uscita,
               archivio.OpenRecordset(QStringLiteral(
                   "select IDDoc from tabDocumento, legameDocTesto where tabDocumento.IDDocumento "
                   "= legameDocTesto.IDDoc and Tipo = '7' and (TAbs = '500' or TAbs = '800') order "
                   "by IDDoc")),
               QStringLiteral("500 o 800 con 'In tema di'"));
  uscita.Print(u"</BODY>"_s);
  uscita.Print(u"</HTML>"_s);
  Concludi(uscita, clessidra, dialoghi, QStringLiteral("Fine stampa prospetto"));
}

}  // namespace torvi
