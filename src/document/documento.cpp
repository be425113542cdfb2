#include "document/documento.h"

namespace torvi {

void Documento::ApriDocumenti() {
  archivio = stato.DbArchivio;
  RsDocumenti = archivio.OpenRecordset(QStringLiteral("TabDocumento"));
}

Recordset& Documento::Documenti() {
  if (!RsDocumenti) throw ErroreEsecuzione(Errore::OggettoNonImpostato);
  RiprendiArchivio();
  return *RsDocumenti;
}

void Documento::RiprendiArchivio() {
  if (!RsDocumenti || archivio.Aperto() || !stato.DbArchivio.Aperto()) return;
  if (archivio.Name() != stato.DbArchivio.Name()) {
    throw ErroreEsecuzione::ConDescrizione(
        Errore::OggettoChiuso,
        QStringLiteral("Il documento è di un altro archivio, che va riaperto: ") + archivio.Name());
  }
  ApriDocumenti();
}

}  // namespace torvi
