#include "document/salva_parti.h"

namespace torvi {
namespace {

struct CampoRiferimento {
  const char* colonna;
  QString CampiDocumento::*campo;
};
constexpr CampoRiferimento kCampi[] = {
    {"Fascicolo", &CampiDocumento::txtFascicolo}, {"Annata", &CampiDocumento::txtAnnata},
    {"Volume", &CampiDocumento::txtVolume},       {"Parte", &CampiDocumento::txtParte},
    {"Serie", &CampiDocumento::txtSerie},         {"Supplemento", &CampiDocumento::txtSuppl},
    {"Sezione", &CampiDocumento::txtSez},
};

QString DueCifre(const QString& testo) {
  if (testo.isEmpty()) return QStringLiteral("00");
  return testo.size() == 1 ? QLatin1Char('0') + testo : testo;
}

// A column that is not set equals no text, not even the empty one: a reference with an empty field
// never finds its twin.
Recordset Cerca(const Database& archivio, const CampiDocumento& campi, const QString& data,
                qint64 idRivista) {
  QString istruzione = QStringLiteral("select * from tabrifbibl where IDRivista = ?");
  QList<Campo> valori = {idRivista};
  for (const CampoRiferimento& campo : kCampi) {
    istruzione += QStringLiteral(" and ") + QLatin1String(campo.colonna) + QStringLiteral(" = ?");
    valori += Campo(campi.*campo.campo);
  }
  return archivio.OpenRecordset(istruzione + QStringLiteral(" and data = ?"),
                                valori << Campo(data));
}

qint16 Aggiungi(const Database& archivio, const CampiDocumento& campi, const QString& data,
                qint64 idRivista) {
  Recordset riferimenti = archivio.OpenRecordset(QStringLiteral("TabRifBibl"));
  riferimenti.AddNew();
  riferimenti.Assegna("IDRivista", idRivista);
  for (const CampoRiferimento& campo : kCampi) {
    const QString& valore = campi.*campo.campo;
    if (!valore.isEmpty()) riferimenti.Assegna(campo.colonna, valore);
  }
  riferimenti.Assegna("data", data);
  riferimenti.Update();
  riferimenti.Bookmark(riferimenti.LastModified());
  return riferimenti.Fields("IDRifBibl").Intero16();
}

}  // namespace

QString DataPubblicazione(const CampiDocumento& campi) {
  QString data = DueCifre(campi.txtGG) + QLatin1Char('/') + DueCifre(campi.txtMM);
  if (!campi.txtAA.isEmpty()) data += QLatin1Char('/') + campi.txtAA;
  return data;
}

qint16 SalvaRiferimento(const Documento& documento) {
  const Database& archivio = documento.stato.DbArchivio;
  const CampiDocumento& campi = documento.campi;
  Recordset riviste = archivio.OpenRecordset(QStringLiteral("TabRivista"));
  riviste.Index("cper");
  riviste.Seek(campi.txtCPer);
  if (riviste.NoMatch()) return 0;
  const qint64 idRivista = riviste.Fields("IDRivista").Intero();
  const QString data = DataPubblicazione(campi);
  const Recordset trovato = Cerca(archivio, campi, data, idRivista);
  if (!trovato.Eof()) return trovato.Fields("IDRifBibl").Intero16();
  return Aggiungi(archivio, campi, data, idRivista);
}

}  // namespace torvi
