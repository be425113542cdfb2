// The translator of statements.
#include "archive/traduttore.h"

#include "ingresso.h"

extern "C" int LLVMFuzzerTestOneInput(const char* byte, std::size_t quanti) {
  return torvi::Prova([&] {
    const auto istruzione = QString::fromUtf8(byte, static_cast<qsizetype>(quanti));
    if (torvi::Traduci(istruzione).sql.isEmpty() && !istruzione.trimmed().isEmpty()) abort();
  });
}
