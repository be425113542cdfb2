#include "export/legami_in_ordine.h"

#include "export/fonte_letta.h"

namespace torvi {

void LegamiInOrdine::Apri() {
  righe_ = archivio_.OpenRecordset(istruzione_);
  colonna_ = righe_->Colonna("IDDoc");
  LeggiNumero();
}

void LegamiInOrdine::LeggiNumero() {
  qui_.reset();
  // A link without a document comes first and belongs to none.
  for (; !righe_->Eof(); righe_->MoveNext()) {
    const Campo numero = righe_->Fields(colonna_);
    if (numero.Nullo()) continue;
    qui_ = numero.Intero();
    return;
  }
}

void LegamiInOrdine::Avanti() {
  righe_->MoveNext();
  LeggiNumero();
}

void LegamiInOrdine::Cerca(qint64 idDoc) {
  if (!righe_ || idDoc <= cercato_) Apri();
  cercato_ = idDoc;
  while (qui_ && *qui_ < idDoc) Avanti();
}

// People and pairs, which many documents share, are looked up by their keys and remembered.
LegamiDocumento::LegamiDocumento(const Database& archivio)
    : responsabilita(archivio,
                     QStringLiteral("select * from legameDocResp order by legameDocResp.IDDoc")),
      testi(archivio,
            QStringLiteral("select legameDocTesto.IDDoc, legameDocTesto.Tipo, tabTesto.testo from "
                           "legameDocTesto, tabTesto where legameDocTesto.IDTesto = "
                           "tabTesto.IDTesto order by legameDocTesto.IDDoc")),
      fonti(archivio, IstruzioneFonti(FontiSenza(archivio))),
      classi(archivio,
             QStringLiteral("select * from legameDocClass order by legameDocClass.IDDoc")),
      classi1999(archivio,
                 QStringLiteral("select * from legameDocClass1999, tabClasse1999 where "
                                "legameDocClass1999.IDClass = tabClasse1999.IDClasse1999 order by "
                                "legameDocClass1999.IDDoc")) {}

}  // namespace torvi
