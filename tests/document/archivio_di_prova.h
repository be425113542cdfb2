// A delivery with journals, codes and two documents, one of each classification scheme, as an
// archive holds them; and a document form without its screen on top.
#pragma once

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "document/documento.h"

namespace torvi {

class ArchivioDiProva {
 public:
  ArchivioDiProva();
  // Document 1 is of 2001, with every kind of row; document 2 of 1998, without date parts.
  CartellaDiProva cartella;
  StatoGlobale stato;
  DialoghiScritti dialoghi;
  Documento documento{stato, dialoghi};

  qint64 Metti(const char* tabella, Valori valori) {
    return Aggiungi(stato.DbArchivio, tabella, valori);
  }
  // The form opened on a document, or on a new one where the number is empty.
  void Apri(const QString& numero);

 private:
  void Documento2001();
  void Documento1998();
};

}  // namespace torvi
