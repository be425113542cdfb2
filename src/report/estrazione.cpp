#include "report/estrazione.h"

#include "shell/consegna.h"

namespace torvi {

using namespace Qt::Literals::StringLiterals;

void Estrai(StatoGlobale& stato, Dialoghi& dialoghi, const Estrazione& estrazione,
            const std::function<void(FileTesto&)>& riempi) {
  Clessidra clessidra(dialoghi);
  LeggiInfoConsegna(stato);
  FileTesto file = ApriUscita(stato, estrazione.file + stato.SiglaConsegna);
  if (stato.ModoBatch) file.Print("Consegna "_L1 + stato.SiglaConsegna);
  riempi(file);
  PartiConsegna(stato, file);
  Concludi(file, clessidra, dialoghi,
           "Fine estrazione "_L1 + estrazione.cosa + " ai documenti (consegna "_L1 +
               stato.SiglaConsegna + QLatin1Char(')'));
}

}  // namespace torvi
