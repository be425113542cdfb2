#include "document/ricerca.h"

#include <array>

#include "shell/consegna.h"
#include "shell/valori.h"

namespace torvi {
namespace {

constexpr auto* kTutti = u"SELECT TabDocumento.* ";
constexpr auto* kDistinti = u"SELECT distinct TabDocumento.* ";

constexpr auto* kDaRivista =
    u"FROM TabRivista INNER JOIN (TabRifBibl INNER JOIN TabDocumento ON TabRifBibl.IDRifBibl = "
    u"TabDocumento.IDRifBibl) ON TabRivista.IDRivista = TabRifBibl.IDRivista ";
constexpr auto* kDaRiferimento =
    u"FROM TabRifBibl INNER JOIN TabDocumento ON TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl ";
constexpr auto* kDaPersona =
    u"FROM TabResponsabilita INNER JOIN (TabDocumento INNER JOIN LegameDocResp ON "
    u"TabDocumento.IDDocumento = LegameDocResp.IDDoc) ON TabResponsabilita.IDResponsabilita = "
    u"LegameDocResp.IDResponsabilita ";
constexpr auto* kDaTesto =
    u"FROM TabTesto INNER JOIN (TabDocumento INNER JOIN LegameDocTesto ON "
    u"TabDocumento.IDDocumento = LegameDocTesto.IDDoc) ON TabTesto.IDTesto = "
    u"LegameDocTesto.IDTesto ";
constexpr auto* kDaFonte =
    u"FROM TabFonte INNER JOIN (TabDocumento INNER JOIN LegameDocFonte ON "
    u"TabDocumento.IDDocumento = LegameDocFonte.IDDoc) ON TabFonte.IDFonte = LegameDocFonte.IDFnt ";
constexpr auto* kDaSistematico =
    u"FROM [TabClasse2000-S] INNER JOIN (TabClasse2000 INNER JOIN (TabDocumento INNER JOIN "
    u"LegameDocClass ON TabDocumento.IDDocumento = LegameDocClass.IDDoc) ON "
    u"TabClasse2000.IDClasse2000 = LegameDocClass.IDClass) ON [TabClasse2000-S].IDClasseS = "
    u"TabClasse2000.[IDClasse2000-S]";
constexpr auto* kDaDescrittore =
    u"FROM [TabClasse2000-D] INNER JOIN (TabClasse2000 INNER JOIN (TabDocumento INNER JOIN "
    u"LegameDocClass ON TabDocumento.IDDocumento = LegameDocClass.IDDoc) ON "
    u"TabClasse2000.IDClasse2000 = LegameDocClass.IDClass) ON [TabClasse2000-D].IDClasseD = "
    u"TabClasse2000.[IDClasse2000-D]";

constexpr auto* kDove = u"WHERE ";
constexpr auto* kDoveAutore = u"WHERE LegameDocResp.FlagAutore = True and ";
constexpr auto* kDoveCuratore = u"WHERE LegameDocResp.FlagAutore = False and ";

constexpr auto* kPrimo = u"TabResponsabilita.PrimoElemento";
constexpr auto* kSecondo = u"TabResponsabilita.SecondoElemento";
constexpr auto* kTesto = u"TabTesto.Testo";

constexpr CampoRicerca CampoTesto(const char16_t* voce, const char16_t* dove) {
  return {voce, kTutti, kDaTesto, dove, kTesto, u")", false};
}

constexpr std::array kCampi = {
    CampoRicerca{u"CPer", kTutti, kDaRivista, kDove, u"TabRivista.CPER", u"", true},
    CampoRicerca{u"Data pubblicazione", kTutti, kDaRiferimento, kDove, u"TabRifBibl.Data", u"",
                 true},
    CampoRicerca{u"Fascicolo", kTutti, kDaRiferimento, kDove, u"TabRifBibl.Fascicolo", u"", true},
    CampoRicerca{u"Autore - 1° elemento (cognome)", kTutti, kDaPersona, kDoveAutore, kPrimo, u"",
                 false},
    CampoRicerca{u"Autore - 2° elemento (nome)", kTutti, kDaPersona, kDoveAutore, kSecondo, u"",
                 false},
    CampoRicerca{u"Curatore - 1° elemento (cognome)", kTutti, kDaPersona, kDoveCuratore, kPrimo,
                 u"", false},
    CampoRicerca{u"Curatore - 2° elemento (nome)", kTutti, kDaPersona, kDoveCuratore, kSecondo, u"",
                 false},
    CampoTesto(u"Titolo", u"WHERE (LegameDocTesto.Tipo='0') AND ("),
    CampoTesto(u"Riassunto", u"WHERE (LegameDocTesto.Tipo='1') AND ("),
    CampoTesto(u"Sommario", u"WHERE (LegameDocTesto.Tipo='2') AND ("),
    CampoTesto(u"In tema di", u"WHERE (LegameDocTesto.Tipo='7') AND ("),
    CampoTesto(u"Nota", u"WHERE (LegameDocTesto.Tipo='4') AND ("),
    CampoRicerca{u"Fonte (testo)", kDistinti, kDaFonte, u"Where ", u"TabFonte.testo", u"", false},
    CampoRicerca{u"Fonte (TP)", kTutti, kDaFonte, kDove, u"TabFonte.TP", u"", true},
    CampoRicerca{u"Classificazione sistematico (codice)", kTutti, kDaSistematico, kDove,
                 u"[TabClasse2000-S].CodiceS", u"", false},
    CampoRicerca{u"Classificazione descrittore (codice)", kTutti, kDaDescrittore, kDove,
                 u"[TabClasse2000-D].CodiceD", u"", false},
};

// The delivery number is an estimate: a deleted document moves those after it.
QString RigaRisultato(const StatoGlobale& stato, qint64 numero) {
  return QString::number(numero) + QLatin1String(" --> ") +
         NumeroIntero(stato, numero + stato.ContatoreDoc - 1) + QLatin1String(" ?");
}

void Raccogli(StatoGlobale& stato, Recordset& trovati, RisultatoRicerca& risultato) {
  for (const int colonna = trovati.Colonna("IDDocumento"); !trovati.Eof(); trovati.MoveNext()) {
    const Campo numero = trovati.Fields(colonna);
    risultato.lstRisultato += RigaRisultato(stato, numero.Intero());
    stato.ListaRicerca.push_back(numero.Intero16());
  }
}

}  // namespace

std::span<const CampoRicerca> CampiRicerca() { return kCampi; }

QString IstruzioneRicerca(const CampoRicerca& campo, ModoCampo modo, const QString& parole) {
  const auto parte = [](const char16_t* testo) { return QStringView(testo).toString(); };
  return parte(campo.seleziona) + parte(campo.da) + parte(campo.dove) +
         CondizioneParole(parte(campo.colonna), modo, parole) + parte(campo.chiusura) +
         QLatin1String(" order by TabDocumento.IDDocumento");
}

void AzzeraRicerca(StatoGlobale& stato) {
  stato.SqlRicerca.clear();
  stato.ListaRicerca.clear();
}

void EseguiRicerca(StatoGlobale& stato, Dialoghi& dialoghi, const CampoRicerca* campo,
                   ModoCampo modo, const QString& parole, RisultatoRicerca& risultato) {
  if (campo == nullptr || parole.isEmpty()) {
    dialoghi.Messaggio(QStringLiteral("Informazioni mancanti!"));
    return;
  }
  const QString istruzione = IstruzioneRicerca(*campo, modo, parole);
  Recordset trovati = stato.DbArchivio.OpenRecordset(istruzione);
  LeggiInfoConsegna(stato);
  risultato.lstRisultato.clear();
  stato.SqlRicerca = istruzione;
  stato.ListaRicerca.clear();
  if (trovati.Eof()) {
    risultato.cmdInterroga = false;
    dialoghi.Messaggio(QStringLiteral("Non esistono record che soddisfano la ricerca impostata"));
    return;
  }
  Raccogli(stato, trovati, risultato);
  risultato.cmdInterroga = true;
  stato.IDDocumentoScelto = QString::number(stato.ListaRicerca.front());
}

}  // namespace torvi
