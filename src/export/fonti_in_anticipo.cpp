#include "export/fonti_in_anticipo.h"

#include <utility>

#include "archive/errore.h"

namespace torvi {
namespace {

// Sources are handed over many at a time, and so many times ahead at the most.
constexpr std::size_t kMazzo = 128;
constexpr std::size_t kMazzi = 6;

qint64 Documento(const FonteLetta& fonte) { return fonte[ColonnaFonte::IDDoc].Intero(); }

}  // namespace

void FontiInAnticipo::Comincia() {
  if (lettore_.joinable()) return;
  // The other connection would read what was there before.
  if (archivio_.InUnita()) throw ErroreEsecuzione(Errore::OperazioneNonAmmessa, archivio_.Name());
  lettore_ = std::jthread([this, percorso = archivio_.Name()](const std::stop_token& fermo) {
    LeggiTutte(fermo, percorso);
  });
}

void FontiInAnticipo::LeggiTutte(const std::stop_token& fermo, const QString& percorso) {
  Mazzo mazzo;
  std::exception_ptr guasto;
  try {
    const Database suo = OpenDatabase(percorso, Accesso::SolaLettura);
    const ColonneAssenti assenti = FontiSenza(suo);
    Recordset righe = suo.OpenRecordset(IstruzioneFonti(assenti));
    for (; !righe.Eof(); righe.MoveNext()) {
      FonteLetta fonte(righe.Copia(), assenti);
      // A link without a document belongs to none.
      if (fonte[ColonnaFonte::IDDoc].Nullo()) continue;
      if (mazzo.size() >= kMazzo && Documento(fonte) != Documento(mazzo.back())) {
        if (!Consegna(fermo, std::exchange(mazzo, {}))) return;
        mazzo.reserve(kMazzo + kMazzo / 4);
      }
      mazzo.push_back(std::move(fonte));
    }
  } catch (...) {
    guasto = std::current_exception();
  }
  Consegna(fermo, std::move(mazzo));
  const std::lock_guard chiusa(serratura_);
  guasto_ = guasto;
  finite_ = true;
  cambiato_.notify_one();
}

// False where nobody wants it any more.
bool FontiInAnticipo::Consegna(const std::stop_token& fermo, Mazzo mazzo) {
  std::vector<Mazzo> usati;  // given free here, when the lock is off
  std::unique_lock chiusa(serratura_);
  if (!cambiato_.wait(chiusa, fermo, [this] { return pronti_.size() < kMazzi; })) return false;
  pronti_.push_back(std::move(mazzo));
  usati.swap(usati_);
  cambiato_.notify_one();
  chiusa.unlock();
  return true;
}

// The next sources; false where there are none.
bool FontiInAnticipo::Prendi() {
  std::unique_lock chiusa(serratura_);
  cambiato_.wait(chiusa, [this] { return finite_ || !pronti_.empty(); });
  if (pronti_.empty()) {
    if (guasto_) std::rethrow_exception(guasto_);
    return false;
  }
  usati_.push_back(std::exchange(mazzo_, std::move(pronti_.front())));
  pronti_.pop_front();
  posto_ = 0;
  cambiato_.notify_one();
  return true;
}

std::span<const FonteLetta> FontiInAnticipo::Leggi(qint64 idDoc) {
  Comincia();
  const auto prima = [&] { return posto_ < mazzo_.size() && Documento(mazzo_[posto_]) < idDoc; };
  do {
    while (prima()) ++posto_;
  } while (posto_ >= mazzo_.size() && Prendi());
  const std::size_t inizio = posto_;
  while (posto_ < mazzo_.size() && Documento(mazzo_[posto_]) == idDoc) ++posto_;
  return std::span(mazzo_).subspan(inizio, posto_ - inizio);
}

}  // namespace torvi
