#include "export/registro_uscite.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <vector>

#include "archive/errore.h"
#include "archive/file_nuovo.h"
#include "archive/scrittura_file.h"

namespace torvi {
namespace {

// The first byte of the file; each entry behind it is four values, each closed by a zero byte: the
// name beside (of a new file), the length before and the number of the file on its disk (of one
// that is added to; length -1: it was not there), its place.
constexpr char kInCorso = 'C';
constexpr char kCompleto = 'F';
constexpr qsizetype kValori = 4;

QString Nome(int numero) {
  return QStringLiteral(".uscite-%1-%2").arg(QCoreApplication::applicationPid()).arg(numero);
}

class Descrittore {
 public:
  Descrittore(const QString& percorso, int modo)
      : file_(open(QFile::encodeName(percorso).constData(), modo | O_CLOEXEC)) {}
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  ~Descrittore() {
    if (file_ >= 0) close(file_);
  }
  [[nodiscard]] bool Aperto() const { return file_ >= 0; }
  [[nodiscard]] bool Blocca(int come) const { return Aperto() && flock(file_, come) == 0; }
  [[nodiscard]] bool Tolto() const {
    struct stat dati {};
    return fstat(file_, &dati) != 0 || dati.st_nlink == 0;
  }

 private:
  int file_;
};

quint64 NumeroSuDisco(const QString& percorso) {
  struct stat dati {};
  return stat(QFile::encodeName(percorso).constData(), &dati) == 0 ? dati.st_ino : 0;
}

struct Voce {
  QString passaggio;
  qint64 misura;
  quint64 numero;
  QString posto;
};

struct Registro {
  bool completo = false;
  std::vector<Voce> voci;
};

// An entry that was not written whole stands for a file that was not begun.
Registro Leggi(const QString& percorso) {
  QFile file(percorso);
  if (!file.open(QIODevice::ReadOnly)) throw ErroreEsecuzione(Errore::ErroreDispositivo, percorso);
  const QByteArray byte = file.readAll();
  Registro registro;
  registro.completo = byte.startsWith(kCompleto);
  const QList<QByteArray> valori = byte.mid(1).split('\0');
  for (qsizetype i = 0; i + kValori < valori.size(); i += kValori) {
    registro.voci.push_back({QFile::decodeName(valori[i]), valori[i + 1].toLongLong(),
                             valori[i + 2].toULongLong(), QFile::decodeName(valori[i + 3])});
  }
  return registro;
}

bool Togli(const QString& percorso) {
  return QFile::remove(percorso) || !QFileInfo::exists(percorso);
}

// A name beside that is gone was put in its place before the kill.
bool Colloca(const Voce& voce) {
  return std::rename(QFile::encodeName(voce.passaggio).constData(),
                     QFile::encodeName(voce.posto).constData()) == 0 ||
         errno == ENOENT;
}

// False where it cannot be done.
bool Termina(const Voce& voce, bool completo) {
  if (!voce.passaggio.isEmpty()) return completo ? Colloca(voce) : Togli(voce.passaggio);
  if (completo || NumeroSuDisco(voce.posto) != voce.numero) return true;
  if (voce.misura < 0) return Togli(voce.posto);
  return QFileInfo(voce.posto).size() <= voce.misura || QFile::resize(voce.posto, voce.misura);
}

// Who writes a register holds it locked; where a file system has no locks its number must do.
bool Morto(const Descrittore& file, const QString& nome) {
  if (file.Blocca(LOCK_EX | LOCK_NB)) return true;
  if (errno == EWOULDBLOCK) return false;
  const pid_t processo = nome.section(QLatin1Char('-'), 1, 1).toInt();
  return processo > 0 && kill(processo, 0) != 0 && errno == ESRCH;
}

// Goes through the registers of a folder: those of killed runs come to their end, in the others the
// file of that place must not be. The own one is skipped.
void Percorri(const QString& cartella, const QString& proprio, const QString& posto) {
  const QStringList nomi =
      QDir(cartella).entryList({QStringLiteral(".uscite-*")}, QDir::Files | QDir::Hidden);
  for (const QString& nome : nomi) {
    const QString percorso = QDir(cartella).filePath(nome);
    if (percorso == proprio) continue;
    const Descrittore file(percorso, O_RDWR);
    if (!file.Aperto()) continue;
    const bool morto = Morto(file, nome);
    if (file.Tolto()) continue;
    const Registro registro = Leggi(percorso);
    for (const Voce& voce : registro.voci) {
      if (morto) {
        if (Termina(voce, registro.completo)) continue;
        throw ErroreEsecuzione(Errore::ErroreDispositivo, voce.posto);
      }
      if (voce.posto == posto) {
        throw ErroreEsecuzione::ConDescrizione(
            Errore::FileAperto,
            QStringLiteral("Un altro programma sta scrivendo %1: attendere che finisca e ripetere")
                .arg(posto));
      }
    }
    if (morto) QFile::remove(percorso);
  }
}

}  // namespace

RegistroUscite::RegistroUscite(const QString& cartella) : cartella_(cartella) {}

RegistroUscite::~RegistroUscite() {
  if (file_ < 0) return;
  QFile::remove(percorso_);
  close(file_);
}

void RegistroUscite::Apri() {
  for (int numero = 0; file_ < 0; ++numero) {
    percorso_ = QDir(cartella_).filePath(Nome(numero));
    file_ = open(QFile::encodeName(percorso_).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC,
                 S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH);
    if (file_ < 0 && errno != EEXIST) return;
  }
  flock(file_, LOCK_EX | LOCK_NB);
}

void RegistroUscite::Annota(const QByteArray& voce, const QString& posto) {
  const QFileInfo cartella(cartella_);
  if (!cartella.isDir() || !cartella.isWritable()) return;
  const Descrittore soli(cartella_, O_RDONLY | O_DIRECTORY);
  (void)soli.Blocca(LOCK_EX);  // where a file system has no locks runs go unwatched
  Percorri(cartella_, percorso_, posto);
  QByteArray byte = voce + QFile::encodeName(posto) + '\0';
  if (file_ < 0) {
    Apri();
    byte.prepend(kInCorso);
  }
  if (file_ < 0 || !ScriviTutto(file_, byte)) {
    throw ErroreEsecuzione(ErroreDiScrittura(errno), posto);
  }
  if (primo_.isEmpty()) primo_ = posto;
}

void RegistroUscite::SiRinnova(const QString& posto, const QString& passaggio) {
  Annota(QFile::encodeName(passaggio) + QByteArray("\0"
                                                   "0\0"
                                                   "0\0",
                                                   5),
         posto);
}

void RegistroUscite::SiAccoda(const QString& posto, bool cera) {
  const qint64 misura = cera ? QFileInfo(posto).size() : -1;
  Annota('\0' + QByteArray::number(misura) + '\0' + QByteArray::number(NumeroSuDisco(posto)) + '\0',
         posto);
}

void RegistroUscite::Completo() {
  if (file_ < 0) return;
  if (pwrite(file_, &kCompleto, 1, 0) != 1 || fdatasync(file_) != 0) {
    throw ErroreEsecuzione(ErroreDiScrittura(errno), primo_);
  }
}

void RipristinaUscite(const QString& cartella) {
  if (!QFileInfo(cartella).isWritable()) return;
  const Descrittore soli(cartella, O_RDONLY | O_DIRECTORY);
  (void)soli.Blocca(LOCK_EX);
  Percorri(cartella, {}, {});
  // What no register needs any more, and nobody holds.
  TogliFileLasciati(cartella);
}

}  // namespace torvi
