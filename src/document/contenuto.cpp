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
  return QStringLiteral("Documento %1: %2, %3")
      .arg(documento.campi.txtID.trimmed(),
           documento.stato.DocumentoNuovo ? QStringLiteral("nuovo") : QStringLiteral("esistente"),
           modificato ? QStringLiteral("modificato") : QStringLiteral("non modificato"));
}

}  // namespace torvi
