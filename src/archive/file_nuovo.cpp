#include "archive/file_nuovo.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>

#include "archive/errore.h"

namespace torvi {

namespace {

QString NomePassaggio(const QString& destinazione) {
  const QString base =
      destinazione % QStringLiteral(".%1-").arg(QCoreApplication::applicationPid());
  for (int n = 0;; ++n) {
    QString nome = base % QString::number(n);
    if (!QFile::exists(nome)) return nome;
  }
}

void TogliSeguito(const QString& percorso) {
  // A journal left by a killed program would be rolled back into the new file.
  QFile::remove(percorso % QStringLiteral("-journal"));
}

// What a file holds is on disk before its name is, so that a power cut never leaves the name alone.
// Some file systems refuse it for folders: these keep names in order by themselves.
bool SuDisco(const QString& percorso) {
  const int file = open(QFile::encodeName(percorso).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool fatto = fsync(file) == 0;
  const int causa = errno;
  close(file);
  errno = causa;
  return fatto;
}

Errore NumeroScrittura(int causa) {
  switch (causa) {
    case ENOSPC:
    case EDQUOT:
      return Errore::DiscoPieno;
    case EIO:
      return Errore::ErroreDispositivo;
    default:
      return Errore::ErroreAccessoFile;
  }
}

}  // namespace

FileNuovo::FileNuovo(const QString& destinazione)
    : destinazione_(destinazione), percorso_(NomePassaggio(destinazione)) {
  const QFileInfo cartella(QFileInfo(destinazione).absolutePath());
  if (!cartella.isDir()) throw ErroreEsecuzione(Errore::PercorsoNonTrovato, cartella.filePath());
  if (!cartella.isWritable() || QFileInfo(destinazione).isDir()) {
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, destinazione);
  }
}

FileNuovo::~FileNuovo() {
  if (percorso_.isEmpty()) return;
  QFile::remove(percorso_);
  TogliSeguito(percorso_);
}

void FileNuovo::Copia(const QString& origine) {
  if (!QFileInfo(origine).isFile()) throw ErroreEsecuzione(Errore::FileNonTrovato, origine);
  if (!QFile::copy(origine, percorso_))
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, percorso_);
  // A master that is write-protected still makes deliveries that are not.
  QFile::setPermissions(percorso_, QFile::permissions(percorso_) | QFile::WriteOwner);
}

void FileNuovo::Consegna() {
  if (QFile::exists(destinazione_)) {
    throw ErroreEsecuzione::ConDescrizione(
        Errore::ErroreAccessoFile, QStringLiteral("Il file esiste già: %1").arg(destinazione_));
  }
  Rinomina();
}

void FileNuovo::Sostituisci() {
  if (QFile::exists(destinazione_) && !QFileInfo(destinazione_).isWritable()) {
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, destinazione_);
  }
  TogliSeguito(destinazione_);
  Rinomina();
}

void FileNuovo::Rinomina() {
  if (!SuDisco(percorso_) || std::rename(QFile::encodeName(percorso_).constData(),
                                         QFile::encodeName(destinazione_).constData()) != 0) {
    throw ErroreEsecuzione(NumeroScrittura(errno), destinazione_);
  }
  percorso_.clear();
  (void)SuDisco(QFileInfo(destinazione_).absolutePath());
}

}  // namespace torvi
