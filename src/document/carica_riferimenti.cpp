#include "archive/errore.h"
#include "document/carica.h"
#include "document/carica_parti.h"
#include "shell/valori.h"

namespace torvi {
namespace {

struct CampoRiferimento {
  const char* colonna;
  QString CampiDocumento::*campo;
};
constexpr CampoRiferimento kCampi[] = {
    {"fascicolo", &CampiDocumento::txtFascicolo}, {"annata", &CampiDocumento::txtAnnata},
    {"volume", &CampiDocumento::txtVolume},       {"parte", &CampiDocumento::txtParte},
    {"supplemento", &CampiDocumento::txtSuppl},   {"serie", &CampiDocumento::txtSerie},
    {"sezione", &CampiDocumento::txtSez},
};

const QString& Voce(const QStringList& voci, qint64 posto) {
  if (posto < 0 || posto >= voci.size()) throw ErroreEsecuzione(Errore::ValoreProprietaNonValido);
  return voci.at(posto);
}

qint64 Numero(const Campo& campo) { return static_cast<qint64>(Val(campo.TestoOVuoto())); }

void MostraCodici(Documento& documento, const Recordset& riga) {
  CampiDocumento& campi = documento.campi;
  const CodiciDocumento& codici = documento.codici;
  const qint64 bib = Numero(riga.Fields("Bib"));
  campi.ComboBib = bib < 0 ? SegnapostoBib() : Voce(codici.ComboBib, bib);
  const qint64 td = Numero(riga.Fields("td"));
  campi.ComboTD = td < 1 ? SegnapostoTD() : Voce(codici.ComboTD, td - 1);
  static const QStringList kTAbs = {"400", "500", "600", "700", "800", "900"};
  const qsizetype tAbs = kTAbs.indexOf(riga.Fields("TAbs").TestoOVuoto());
  campi.ComboTAbs = tAbs < 0 ? SegnapostoTAbs() : Voce(codici.ComboTAbs, tAbs);
}

void MostraLingua(Documento& documento, const Recordset& riga) {
  const Campo lin = riga.Fields("LIN");
  if (!lin.Presente()) return;
  Recordset lingue = documento.stato.DbArchivio.OpenRecordset(QStringLiteral("TabLingua"));
  lingue.Index("PrimaryKey");
  lingue.Seek(lin);
  documento.campi.ComboLIN =
      lingue.Fields("idLingua").Testo() + QLatin1Char('|') + lingue.Fields("Lingua").Testo();
}

// "00" in front and "/00/" inside stand for an unknown day and month; the year is what stands last,
// whatever it is.
void MostraData(CampiDocumento& campi, const Campo& data) {
  const QString testo = data.TestoOVuoto();
  const bool senzaGiorno = testo.left(2) == QStringLiteral("00");
  campi.txtGG = senzaGiorno ? QString() : testo.left(2);
  campi.txtMM = testo.contains(QStringLiteral("/00/")) ? QString() : testo.mid(3, 2);
  campi.txtAA = testo.right(4);
}

void MostraRivista(Documento& documento, const Campo& idRivista) {
  Recordset riviste = documento.stato.DbArchivio.OpenRecordset(QStringLiteral("TabRivista"));
  riviste.Index("PrimaryKey");
  riviste.Seek(idRivista);
  if (riviste.NoMatch()) return;
  documento.campi.txtCPer = riviste.Fields("CPER").TestoOVuoto();
  ControllaPeriodico(documento);
}

}  // namespace

void CaricaRiferimenti(Documento& documento) {
  Recordset& documenti = documento.Documenti();
  documenti.Index("PrimaryKey");
  documenti.Seek(NumeroDocumento(documento));
  MostraLingua(documento, documenti);
  MostraCodici(documento, documenti);
  CampiDocumento& campi = documento.campi;
  campi.txtPagine = documenti.Fields("pagine").TestoOVuoto();

  Recordset riferimenti = documento.stato.DbArchivio.OpenRecordset(QStringLiteral("TabRifBibl"));
  riferimenti.Index("PrimaryKey");
  riferimenti.Seek(documenti.Fields("IDRifBibl"));
  if (riferimenti.NoMatch()) return;
  MostraRivista(documento, riferimenti.Fields("IDRivista"));
  for (const CampoRiferimento& campo : kCampi) {
    campi.*campo.campo = riferimenti.Fields(campo.colonna).TestoOVuoto();
  }
  MostraData(campi, riferimenti.Fields("Data"));
}

void ControllaPeriodico(Documento& documento) {
  CampiDocumento& campi = documento.campi;
  const Recordset riga = documento.stato.DbArchivio.OpenRecordset(
      QStringLiteral("SELECT TabRivista.TitoloRivista, TabPeriodicita.Periodicita FROM TabRivista "
                     "INNER JOIN TabPeriodicita ON TabRivista.IDPeriodicita = "
                     "TabPeriodicita.IDPeriodicita WHERE TabRivista.CPER = ?"),
      {campi.txtCPer});
  if (riga.Eof()) {
    documento.dialoghi.Messaggio(QStringLiteral("Codice periodico errato!"),
                                 QStringLiteral("Attenzione!"));
    documento.fuoco = QStringLiteral("txtCPer");
    return;
  }
  campi.txtRivista = riga.Fields("TitoloRivista").TestoOVuoto() + QStringLiteral(" (") +
                     riga.Fields("Periodicita").TestoOVuoto() + QLatin1Char(')');
}

}  // namespace torvi
