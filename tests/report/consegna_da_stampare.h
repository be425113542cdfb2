// A small delivery whose documents reach every branch of the prints.
#pragma once

#include "export/documento_di_prova.h"

namespace torvi {

class ConsegnaDaStampare : public DocumentiDiProva {
 public:
  // Five documents: everything there is, before 2000, without reference, without date, a year that
  // is still to come.
  ConsegnaDaStampare();

 private:
  void Completo() const;
  void Vecchio() const;
  void SenzaRiferimento() const;
  void SenzaData() const;
  void Futuro() const;
  void Fonte(qint64 idDoc, const char* tp, const char* testo) const;
};

// A file of dump/ against the one of tests/dati/ of the same name; LF stands there for CR LF.
void ConfrontaConDati(const DocumentiDiProva& prova, const char* nome);

}  // namespace torvi
