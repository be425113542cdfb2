// The reader of Jet files. An input tells what is changed in a genuine file: a byte that says
// which, then four bytes a change, the place (24 bits, the low byte first) and the new byte.
#include "archive/jet.h"

#include <QDir>
#include <QFile>

#include "ingresso.h"

namespace {

QList<QByteArray> Genuini() {
  QList<QByteArray> contenuti;
  const QDir cartella(QStringLiteral(TORVI_FILE_JET));
  for (const QString& nome : cartella.entryList({QStringLiteral("*.mdb")}, QDir::Files)) {
    QFile file(cartella.filePath(nome));
    if (!file.open(QIODevice::ReadOnly)) abort();
    contenuti += file.readAll();
  }
  if (contenuti.isEmpty()) abort();
  return contenuti;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* byte, std::size_t quanti) {
  static const QList<QByteArray> genuini = Genuini();
  if (quanti == 0) return 0;
  QByteArray contenuto = genuini.at(byte[0] % genuini.size());
  for (std::size_t i = 1; i + 4 <= quanti; i += 4) {
    const qsizetype posto = byte[i] | (byte[i + 1] << 8) | (byte[i + 2] << 16);
    contenuto[posto % contenuto.size()] = static_cast<char>(byte[i + 3]);
  }
  return torvi::Prova([&] {
    const torvi::FileInMemoria file(contenuto);
    const torvi::LettoreJet lettore(file.Percorso());
    for (const torvi::Tabella& tabella : lettore.Tabelle()) {
      lettore.LeggiRighe(tabella.nome, [&tabella](const std::vector<torvi::Campo>& riga) {
        if (riga.size() != tabella.colonne.size()) abort();
      });
    }
  });
}
