#include <langinfo.h>

#include <QCoreApplication>
#include <QFile>
#include <clocale>

#include "cli/torvi.h"

namespace {

// Qt reads file names as UTF-8 whatever the terminal says, and complains where it says otherwise.
void ScegliUtf8() {
  std::setlocale(LC_ALL, "");
  if (QByteArray(nl_langinfo(CODESET)) != "UTF-8") qputenv("LC_ALL", "C.UTF-8");
}

}  // namespace

int main(int argc, char* argv[]) {
  ScegliUtf8();
  const QCoreApplication applicazione(argc, argv);
  QFile file;
  if (!file.open(stdout, QIODevice::WriteOnly)) return 1;
  QTextStream uscita(&file);
  const int esito = torvi::EseguiTorvi(QCoreApplication::arguments(), uscita);
  uscita.flush();
  const bool scritto = uscita.status() == QTextStream::Ok && file.flush();
  return scritto || esito != 0 ? esito : 1;
}
