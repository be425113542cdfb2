#include "archive/file_provvisorio.h"

#include <QFile>
#include <QFileInfo>

#include "archive/errore.h"

namespace torvi {
namespace {

// The journal goes with its file: beside a new file of that name it would be played back into it.
void Rimuovi(const QString& percorso) {
  QFile::remove(percorso);
  QFile::remove(percorso + QLatin1String("-journal"));
}

}  // namespace

FileProvvisorio::FileProvvisorio(const QString& definitivo)
    : definitivo_(definitivo), provvisorio_(definitivo + QLatin1String(".~parziale")) {
  if (QFileInfo(definitivo).isSymLink() || QFileInfo::exists(definitivo)) {
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, definitivo);
  }
  Rimuovi(provvisorio_);
}

FileProvvisorio::~FileProvvisorio() {
  if (!confermato_) Rimuovi(provvisorio_);
}

void FileProvvisorio::Conferma() {
  if (!QFile::rename(provvisorio_, definitivo_)) {
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, definitivo_);
  }
  confermato_ = true;
}

}  // namespace torvi
