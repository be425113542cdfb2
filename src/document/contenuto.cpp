#include "document/contenuto.h"

#include "document/testi_documento.h"

namespace torvi {

ContenutoDocumento Contenuto(const Documento& documento) {
  const StatoGlobale& stato = documento.stato;
  ContenutoDocumento contenuto{.campi = documento.campi,
                               .responsabilita = stato.RigheResponsabilita,
                               .classi = stato.RigheClasse,
                               .fonti = stato.RigheFonte,
                               .testi = {}};
  for (const TestoDocumento& testo : GeneriDiTesto()) {
    if (testo.buffer != nullptr) contenuto.testi += stato.*testo.buffer;
  }
  return contenuto;
}

QString DescriviStato(const Documento& documento, bool modificato) {
  const QString numero = documento.campi.txtID.trimmed();
  if (!documento.guasto.isEmpty()) {
    return QStringLiteral("Documento %1: non caricato. %2").arg(numero, documento.guasto);
  }
  const QString stato =
      QStringLiteral("Documento %1: %2, %3")
          .arg(numero,
               documento.stato.DocumentoNuovo ? QStringLiteral("nuovo")
                                              : QStringLiteral("esistente"),
               modificato ? QStringLiteral("modificato") : QStringLiteral("non modificato"));
  if (documento.testiMancanti.isEmpty()) return stato;
  return stato + QStringLiteral("; nell'archivio manca il testo: ") +
         documento.testiMancanti.join(QStringLiteral(", "));
}

}  // namespace torvi
