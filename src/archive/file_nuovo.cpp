#include "archive/file_nuovo.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>

#include "archive/errore.h"
#include "archive/scrittura_file.h"
#include "archive/secondo_nome.h"

namespace torvi {

namespace {

constexpr qsizetype kMassimoNome = 255;  // bytes, in the file systems of today
// What is left of a long name beside number, ending and "-journal".
constexpr qsizetype kMassimoBase = 200;

QByteArray SuDisco(const QString& percorso) { return QFile::encodeName(percorso); }

QString NomeDiario(const QString& percorso) { return percorso + QLatin1String("-journal"); }

// What a file holds is on disk before its name is, so that a power cut never leaves the name alone.
// Some file systems refuse it for folders: these keep names in order by themselves.
bool Fissa(const QString& percorso) {
  const int file = open(SuDisco(percorso).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool fatto = fsync(file) == 0;
  const int causa = errno;
  close(file);
  errno = causa;
  return fatto;
}

bool Pieno(const QString& cartella) {
  struct statvfs disco {};
  return statvfs(SuDisco(cartella).constData(), &disco) == 0 &&
         (disco.f_bavail == 0 || (disco.f_files > 0 && disco.f_favail == 0));
}

// Numbers under which the engine may tell of a disk that took no more.
bool ForseDelDisco(const ErroreEsecuzione& errore) {
  constexpr std::array kNumeri = {Errore::ErroreDispositivo, Errore::ErroreAccessoFile,
                                  Errore::PermessoNegato, Errore::FormatoNonRiconosciuto,
                                  Errore::SolaLettura};
  return std::ranges::any_of(kNumeri, [&](Errore numero) { return errore.E(numero); });
}

// The place itself, which a link may only point to. A chain of links without end is none.
QString DoveConduce(const QString& destinazione) {
  constexpr int kMassimoLegami = 8;
  QFileInfo voce(destinazione);
  for (int i = 0; i < kMassimoLegami && voce.isSymLink(); ++i) voce.setFile(voce.symLinkTarget());
  return voce.filePath();
}

QString Base(const QString& destinazione) {
  QString base = QFileInfo(destinazione).fileName();
  while (SuDisco(base).size() > kMassimoBase) base.chop(1);
  return base;
}

// Ends as no archive, list or output does: what is found under such a name can go.
QString NomePassaggio(const QString& destinazione, int n) {
  return QStringLiteral("%1/%2.%3-%4.parziale")
      .arg(QFileInfo(destinazione).absolutePath(), Base(destinazione))
      .arg(QCoreApplication::applicationPid())
      .arg(n);
}

bool Tolto(int file) {
  struct stat dati {};
  return fstat(file, &dati) != 0 || dati.st_nlink == 0;
}

// A file of that name, new and locked. Another program may take it for one left behind between its
// making and its lock: then -1 with EEXIST, as where the name is taken.
int CreaBloccato(const QString& percorso) {
  const int file = open(SuDisco(percorso).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (file < 0) return -1;
  const bool bloccato = flock(file, LOCK_EX | LOCK_NB) == 0;
  // Where a file system knows no locks nobody takes the file for one left behind either.
  if ((bloccato || errno != EWOULDBLOCK) && !Tolto(file)) return file;
  close(file);
  errno = EEXIST;
  return -1;
}

void TogliSeNessunoLoTiene(const QString& percorso) {
  const int file = open(SuDisco(percorso).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
  if (file < 0) return;
  if (flock(file, LOCK_EX | LOCK_NB) == 0) {
    QFile::remove(NomeDiario(percorso));
    QFile::remove(percorso);
  }
  close(file);
}

void TogliLasciati(const QString& cartella, const QString& base) {
  static const QRegularExpression kCoda(QStringLiteral("^(.*)\\.\\d+-\\d+\\.parziale$"));
  const QDir dove(cartella);
  for (const QString& nome : dove.entryList({QStringLiteral("*.parziale")}, QDir::Files)) {
    const QRegularExpressionMatch trovato = kCoda.match(nome);
    if (!trovato.hasMatch() || (!base.isEmpty() && trovato.captured(1) != base)) continue;
    TogliSeNessunoLoTiene(dove.filePath(nome));
  }
}

ErroreEsecuzione ConParole(const QString& parole, const QString& percorso) {
  return ErroreEsecuzione::ConDescrizione(Errore::ErroreAccessoFile, parole.arg(percorso));
}

void RichiediPosto(const QString& destinazione) {
  const QFileInfo posto(destinazione);
  const QFileInfo cartella(posto.absolutePath());
  if (!cartella.isDir()) throw ErroreEsecuzione(Errore::PercorsoNonTrovato, cartella.filePath());
  if (posto.isDir() || posto.fileName().isEmpty()) {
    throw ConParole(QStringLiteral("%1 è una cartella: scrivere il nome di un file."),
                    destinazione);
  }
  if (SuDisco(posto.fileName()).size() > kMassimoNome) {
    throw ConParole(QStringLiteral("Il nome del file è troppo lungo, sceglierne uno più corto: %1"),
                    destinazione);
  }
  if (!cartella.isWritable()) throw ErroreEsecuzione(Errore::ErroreAccessoFile, destinazione);
}

QString NomeConservato(const QString& precedente) {
  const QString primo = precedente + QLatin1String(".precedente");
  QString nome = primo;
  // The same file under that name already: a killed program came so far and no further.
  for (int n = 2; QFile::exists(nome) && !StessoFile(precedente, nome); ++n) {
    nome = QStringLiteral("%1-%2").arg(primo).arg(n);
  }
  if (SuDisco(QFileInfo(nome).fileName()).size() > kMassimoNome) {
    throw ConParole(QStringLiteral("Il nome del file è troppo lungo perché il file di prima si "
                                   "possa conservare accanto, sceglierne uno più corto: %1"),
                    precedente);
  }
  return nome;
}

}  // namespace

FileNuovo::FileNuovo(const QString& destinazione) : destinazione_(DoveConduce(destinazione)) {
  RichiediPosto(destinazione_);
  TogliLasciati(QFileInfo(destinazione_).absolutePath(), Base(destinazione_));
  for (int n = 0; file_ < 0; ++n) {
    percorso_ = NomePassaggio(destinazione_, n);
    file_ = CreaBloccato(percorso_);
    if (file_ < 0 && errno != EEXIST) {
      throw ErroreEsecuzione(ErroreDiScrittura(errno), destinazione_);
    }
  }
}

FileNuovo::~FileNuovo() {
  if (!percorso_.isEmpty()) {
    // The journal first: the file alone is one that the next run finds.
    QFile::remove(NomeDiario(percorso_));
    QFile::remove(percorso_);
  }
  Chiudi();
}

void FileNuovo::Chiudi() {
  if (file_ >= 0) close(file_);
  file_ = -1;
}

void FileNuovo::ScriviByte(QByteArrayView byte) const {
  if (!ScriviTutto(file_, byte)) {
    throw ErroreEsecuzione(ErroreDiScrittura(errno), destinazione_);
  }
}

void FileNuovo::Copia(const QString& origine) {
  constexpr qint64 kLettura = 1 << 20;
  if (!QFileInfo(origine).isFile()) throw ErroreEsecuzione(Errore::FileNonTrovato, origine);
  QFile file(origine);
  if (!file.open(QIODevice::ReadOnly)) throw ErroreEsecuzione(Errore::ErroreAccessoFile, origine);
  for (QByteArray byte = file.read(kLettura); !byte.isEmpty(); byte = file.read(kLettura)) {
    ScriviByte(byte);
  }
  if (file.error() != QFileDevice::NoError) {
    throw ErroreEsecuzione(Errore::ErroreDispositivo, origine);
  }
  // What is write-protected still makes copies that are not.
  QFile::setPermissions(percorso_, file.permissions() | QFile::WriteOwner);
}

void FileNuovo::Riempi(const std::function<void()>& lavoro) const {
  try {
    lavoro();
  } catch (const ErroreEsecuzione& errore) {
    if (ForseDelDisco(errore) && Pieno(QFileInfo(destinazione_).absolutePath())) {
      throw ErroreEsecuzione(Errore::DiscoPieno, destinazione_);
    }
    QString descrizione = errore.Descrizione();
    throw ErroreEsecuzione::ConDescrizione(static_cast<Errore>(errore.Numero()),
                                           descrizione.replace(percorso_, destinazione_));
  }
}

void FileNuovo::Consegna() {
  if (QFile::exists(destinazione_)) {
    throw ConParole(QStringLiteral("Il file esiste già: %1"), destinazione_);
  }
  Rinomina();
}

void FileNuovo::Sostituisci() {
  if (QFile::exists(destinazione_) && !QFileInfo(destinazione_).isWritable()) {
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, destinazione_);
  }
  // A journal left by a killed program would be rolled back into the new file.
  QFile::remove(NomeDiario(destinazione_));
  Rinomina();
}

QString FileNuovo::SostituisciConservando(const QString& precedente) {
  if (!QFile::exists(precedente)) {
    Sostituisci();
    return {};
  }
  if (!QFileInfo(precedente).isWritable()) {
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, precedente);
  }
  QString conservato = NomeConservato(precedente);
  Riempi([&] {
    SecondoNome vecchio(precedente, conservato);
    const QString diario = NomeDiario(precedente);
    const QString diarioConservato = NomeDiario(conservato);
    // It belongs to the old file, wherever that goes.
    QFile::rename(diario, diarioConservato);
    auto indietro = qScopeGuard([&] { QFile::rename(diarioConservato, diario); });
    QFile::remove(NomeDiario(destinazione_));
    Rinomina();
    indietro.dismiss();
    vecchio.Conserva();
  });
  // On disk a name in another case is another file; to the operator it is the one replaced.
  if (precedente != destinazione_) QFile::remove(precedente);
  return conservato;
}

void FileNuovo::Rinomina() {
  if (!Fissa(percorso_) ||
      std::rename(SuDisco(percorso_).constData(), SuDisco(destinazione_).constData()) != 0) {
    throw ErroreEsecuzione(ErroreDiScrittura(errno), destinazione_);
  }
  percorso_.clear();
  Chiudi();
  (void)Fissa(QFileInfo(destinazione_).absolutePath());
}

void TogliFileLasciati(const QString& cartella) { TogliLasciati(cartella, {}); }

}  // namespace torvi
