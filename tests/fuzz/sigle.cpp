// The reader of the lists of deliveries.
#include "report/sigle.h"

#include "ingresso.h"

extern "C" int LLVMFuzzerTestOneInput(const char* byte, std::size_t quanti) {
  return torvi::Prova([&] {
    const torvi::FileInMemoria file({byte, static_cast<qsizetype>(quanti)});
    for (const QString& sigla : torvi::LeggiSigle(file.Percorso())) {
      if (sigla.contains(u'\n') || sigla.contains(u'\r')) abort();
    }
  });
}
