// The reader of code tables.
#include "archive/csv.h"
#include "ingresso.h"

extern "C" int LLVMFuzzerTestOneInput(const char* byte, std::size_t quanti) {
  return torvi::Prova([&] {
    const torvi::FileInMemoria file({byte, static_cast<qsizetype>(quanti)});
    torvi::LettoreCsv lettore(file.Percorso());
    QList<torvi::Campo> celle;
    while (lettore.Leggi(celle)) {
      if (celle.size() != lettore.Colonne().size()) abort();
    }
  });
}
