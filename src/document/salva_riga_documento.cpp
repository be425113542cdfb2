#include "document/carica.h"
#include "document/carica_parti.h"
#include "document/salva_parti.h"

namespace torvi {
namespace {

// The code in front of a combo's text; nothing at its placeholder.
QString Codice(const QString& combo, const QString& segnaposto, int lunghezza) {
  return combo == segnaposto ? QString() : combo.left(lunghezza);
}

QString Lingua(const CampiDocumento& campi) {
  return campi.ComboLIN == SegnapostoLIN() ? QStringLiteral("00") : campi.ComboLIN.left(2);
}

void Inserisci(Documento& documento, qint16 idRifBibl) {
  const CampiDocumento& campi = documento.campi;
  Recordset& righe = documento.Documenti();
  righe.AddNew();
  righe.Assegna("IDRifBibl", static_cast<qint64>(idRifBibl));
  if (!campi.txtPagine.isEmpty()) righe.Assegna("pagine", campi.txtPagine);
  righe.Assegna("LIN", Lingua(campi));
  for (const char* lingua : {"lo", "la", "lr"}) righe.Assegna(lingua, QStringLiteral("00"));
  righe.Assegna("Bib", Codice(campi.ComboBib, SegnapostoBib(), 1));
  righe.Assegna("td", Codice(campi.ComboTD, SegnapostoTD(), 2));
  righe.Assegna("TAbs", Codice(campi.ComboTAbs, SegnapostoTAbs(), 3));
  righe.Update();
}

// What was cleared keeps its old value.
void Modifica(const Documento& documento, qint16 idRifBibl) {
  const CampiDocumento& campi = documento.campi;
  QString istruzione = QStringLiteral("UPDATE tabDocumento SET IDRifBibl = ?");
  QList<Campo> valori = {static_cast<qint64>(idRifBibl)};
  const auto imposta = [&](const char* colonna, const QString& valore) {
    istruzione += QStringLiteral(", ") + QLatin1String(colonna) + QStringLiteral(" = ?");
    valori += Campo(valore);
  };
  if (!campi.txtPagine.isEmpty()) imposta("pagine", campi.txtPagine);
  imposta("LIN", Lingua(campi));
  for (const char* lingua : {"LO", "LR", "LA"}) imposta(lingua, QStringLiteral("00"));
  if (campi.ComboBib != SegnapostoBib()) imposta("bib", campi.ComboBib.left(1));
  if (campi.ComboTD != SegnapostoTD()) imposta("TD", campi.ComboTD.left(2));
  if (campi.ComboTAbs != SegnapostoTAbs()) imposta("TAbs", campi.ComboTAbs.left(3));
  valori += Campo(NumeroDocumento(documento));
  const qint64 scritte = documento.stato.DbArchivio.Execute(
      istruzione + QStringLiteral(" WHERE IDDocumento = ?"), valori);
  if (scritte == 0) throw ErroreEsecuzione(Errore::NessunRecordCorrente, campi.txtID);
}

}  // namespace

void SalvaRigaDocumento(Documento& documento, qint16 idRifBibl) {
  if (documento.SalvaComeNuovo) {
    Inserisci(documento, idRifBibl);
  } else {
    Modifica(documento, idRifBibl);
  }
}

}  // namespace torvi
