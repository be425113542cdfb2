#include "export/file_testo.h"

#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <exception>

#include "archive/errore.h"
#include "archive/scrittura_file.h"
#include "export/codepagina.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

constexpr qsizetype kMassimoPendenti = 65536;
constexpr qint64 kLettura = 65536;

QIODevice::OpenMode Modo(Apertura apertura) {
  switch (apertura) {
    case Apertura::Lettura:
      return QIODevice::ReadOnly;
    case Apertura::Scrittura:
      return QIODevice::WriteOnly | QIODevice::Truncate;
    case Apertura::Aggiunta:
      return QIODevice::WriteOnly | QIODevice::Append;
  }
  return QIODevice::NotOpen;
}

Errore ErroreApertura(const QString& percorso, Apertura apertura) {
  const QFileInfo file(percorso);
  if (percorso.isEmpty() || file.exists()) return Errore::ErroreAccessoFile;
  if (!file.absoluteDir().exists()) return Errore::PercorsoNonTrovato;
  return apertura == Apertura::Lettura ? Errore::FileNonTrovato : Errore::ErroreAccessoFile;
}

// Whether a file can be written beside that place: the folder takes it, and its longer name.
bool PrendeFileNuovi(const QString& posto) {
  constexpr qsizetype kMassimoNome = 255;
  constexpr qsizetype kCoda = 24;  // of the passing name
  const QFileInfo voce(posto);
  return QFileInfo(voce.path()).isWritable() &&
         QFile::encodeName(voce.fileName()).size() + kCoda <= kMassimoNome;
}

// Where the first line in `byte` ends and where the next begins; nothing if its end is not there.
struct FineRiga {
  qsizetype fine;
  qsizetype seguente;
};
std::optional<FineRiga> TrovaFine(QByteArrayView byte, bool completo) {
  for (qsizetype i = 0; i < byte.size(); ++i) {
    if (byte[i] == '\n') return FineRiga{i, i + 1};
    if (byte[i] != '\r') continue;
    if (i + 1 == byte.size() && !completo) return std::nullopt;
    const bool conLf = i + 1 < byte.size() && byte[i + 1] == '\n';
    return FineRiga{i, conLf ? i + 2 : i + 1};
  }
  if (completo && !byte.isEmpty()) return FineRiga{byte.size(), byte.size()};
  return std::nullopt;
}

}  // namespace

FileTesto::FileTesto(const QString& percorso, Apertura apertura, RegistroUscite* insieme)
    : percorso_(TrovaPercorso(percorso)), insieme_(insieme != nullptr) {
  if (percorso.isEmpty()) throw ErroreEsecuzione(Errore::ErroreAccessoFile);
  const QFileInfo voce(percorso_);
  const bool comune = voce.isFile() || !voce.exists();
  if (apertura == Apertura::Scrittura && comune && PrendeFileNuovi(PostoVero(percorso_))) {
    ApriNuovo(PostoVero(percorso_), insieme);
  } else if (apertura == Apertura::Aggiunta && comune) {
    ApriInCoda(PostoVero(percorso_), insieme);
  } else {
    ApriFile(percorso_, apertura);
  }
}

void FileTesto::ApriNuovo(const QString& posto, RegistroUscite* insieme) {
  const QFileInfo vecchio(posto);
  if (vecchio.exists() && !vecchio.isWritable()) {
    throw ErroreEsecuzione(Errore::ErroreAccessoFile, percorso_);
  }
  nuovo_.emplace(posto);
  if (insieme != nullptr) insieme->SiRinnova(posto, nuovo_->Percorso());
  ApriFile(nuovo_->Percorso(), Apertura::Scrittura);
  if (vecchio.exists()) file_.setPermissions(vecchio.permissions());
}

void FileTesto::ApriInCoda(const QString& posto, RegistroUscite* insieme) {
  const bool cera = QFileInfo::exists(posto);
  ApriFile(posto, Apertura::Aggiunta);
  if (insieme == nullptr) registro_.emplace(QFileInfo(posto).path());
  (insieme != nullptr ? insieme : &*registro_)->SiAccoda(posto, cera);
  inizio_ = file_.size();
}

void FileTesto::ApriFile(const QString& nome, Apertura apertura) {
  file_.setFileName(nome);
  // Unbuffered: what a write could not take must be known here, block by block.
  if (file_.open(Modo(apertura) | QIODevice::Unbuffered)) return;
  const bool pieno = ErroreDiScrittura(errno) == Errore::DiscoPieno;
  throw ErroreEsecuzione(pieno ? Errore::DiscoPieno : ErroreApertura(percorso_, apertura),
                         percorso_);
}

FileTesto::~FileTesto() {
  try {
    Close();
  } catch (const ErroreEsecuzione&) {
    // A file that nobody closed belongs to a run that has already failed.
  }
}

void FileTesto::Print(const QString& riga) {
  AccodaAnsi(pendenti_, riga);
  pendenti_ += "\r\n";
  ChiudiBlocco();
}

void FileTesto::ScriviBlocco(QByteArrayView byte) {
  pendenti_ += byte;
  ChiudiBlocco();
}

void FileTesto::ChiudiBlocco() {
  blocchi_.push_back(pendenti_.size());
  if (pendenti_.size() >= kMassimoPendenti) Svuota();
}

void FileTesto::Svuota() {
  qsizetype scritti = 0;
  while (scritti < pendenti_.size()) {
    const qint64 ora = file_.write(pendenti_.constData() + scritti, pendenti_.size() - scritti);
    if (ora > 0) {
      scritti += ora;
      continue;
    }
    const bool pieno = file_.error() == QFileDevice::ResourceError;
    RiduciAiBlocchiInteri(scritti);
    throw ErroreEsecuzione(pieno ? Errore::DiscoPieno : Errore::ErroreDispositivo, Percorso());
  }
  inizio_ += scritti;
  pendenti_.resize(0);  // keeps its memory for the next blocks
  blocchi_.clear();
}

void FileTesto::RiduciAiBlocchiInteri(qsizetype scritti) {
  const auto primoRotto = std::upper_bound(blocchi_.begin(), blocchi_.end(), scritti);
  if (primoRotto != blocchi_.begin()) inizio_ += *std::prev(primoRotto);
  if (!file_.isSequential()) file_.resize(inizio_);
  pendenti_.clear();
  blocchi_.clear();
}

std::optional<QString> FileTesto::LineInput(qsizetype massimo) {
  while (true) {
    const bool completo = file_.atEnd();
    const QByteArrayView resto = QByteArrayView(pendenti_).sliced(letti_);
    const auto fine = TrovaFine(resto, completo);
    if ((fine ? fine->fine : resto.size()) > massimo) {
      throw ErroreEsecuzione::ConDescrizione(
          Errore::ChiamataNonValida, QStringLiteral("La riga %1 di %2 ha più di %3 caratteri")
                                         .arg(righe_ + 1)
                                         .arg(Percorso())
                                         .arg(massimo));
    }
    if (fine) {
      ++righe_;
      letti_ += fine->seguente;
      return DaAnsi(resto.first(fine->fine));
    }
    if (completo || !Leggi()) return std::nullopt;
  }
}

bool FileTesto::Leggi() {
  pendenti_.remove(0, letti_);
  letti_ = 0;
  const QByteArray byte = file_.read(kLettura);
  if (file_.error() != QFileDevice::NoError) {
    throw ErroreEsecuzione(Errore::ErroreDispositivo, Percorso());
  }
  if (byte.isEmpty()) return false;
  pendenti_ += byte;
  return true;
}

void FileTesto::SuDisco() {
  if (fdatasync(file_.handle()) == 0) return;
  const Errore numero = ErroreDiScrittura(errno);
  // Any other cause: it is no file on a disk.
  if (numero != Errore::ErroreAccessoFile) throw ErroreEsecuzione(numero, Percorso());
}

void FileTesto::Close() {
  if (!file_.isOpen()) return;
  std::exception_ptr guasto;
  if (file_.openMode().testFlag(QIODevice::WriteOnly)) {
    try {
      Svuota();
      SuDisco();
    } catch (const ErroreEsecuzione&) {
      guasto = std::current_exception();
    }
  }
  file_.close();
  if (!insieme_) VaAlPosto();
  registro_.reset();
  if (guasto) std::rethrow_exception(guasto);
}

void FileTesto::VaAlPosto() {
  if (!nuovo_) return;
  nuovo_->Sostituisci();
  nuovo_.reset();
}

}  // namespace torvi
