#include "archive/jet_descrizione.h"

#include <set>

#include "archive/jet_valori.h"

namespace torvi::jet {
namespace {

// Where things stand on the first page...
constexpr std::size_t kSuccessiva = 4;
constexpr std::size_t kQuanteColonne = 45;
constexpr std::size_t kQuantiIndici = 47;
constexpr std::size_t kQuantiVeri = 51;
constexpr std::size_t kMappaLiberi = 59;
constexpr std::size_t kVoci = 63;
// ...where a further page goes on, and how long the entries are, one kind after the other.
constexpr std::size_t kSeguito = 8;
constexpr std::size_t kConto = 12;
constexpr std::size_t kColonna = 25;
constexpr std::size_t kVero = 52;
constexpr std::size_t kIndice = 28;

// In an entry of the third kind, and of the fourth.
constexpr std::size_t kChiavi = 4;
constexpr std::size_t kChiave = 3;
constexpr std::size_t kContrassegni = 46;
constexpr std::size_t kQualeVero = 8;
constexpr std::size_t kGenere = 23;

constexpr std::size_t kMassimo = 255;
constexpr unsigned kNessunaColonna = 0xffff;
constexpr std::uint8_t kDiRelazione = 2;

}  // namespace

Descrizione::Descrizione(Pagine& pagine, std::uint32_t prima, const QString& nome)
    : pagine_(pagine), dove_(QStringLiteral("la definizione della tabella ") + nome) {
  Raccogli(pagine, prima);
  const std::size_t colonne = Numero16(dati_, kQuanteColonne);
  indici_ = Numero32(dati_, kQuantiIndici);
  veri_ = Numero32(dati_, kQuantiVeri);
  Esigi(colonne >= 1 && colonne <= kMassimo && indici_ <= kMassimo && veri_ <= kMassimo);
  inizioVeri_ = SaltaNomi(kVoci + veri_ * kConto + colonne * kColonna, colonne);
  inizioIndici_ = inizioVeri_ + veri_ * kVero;
  SaltaNomi(inizioIndici_ + indici_ * kIndice, indici_);
  // The library takes a copy of this map.
  (void)pagine.RigaLontana(Numero32(dati_, kMappaLiberi));
}

void Descrizione::Raccogli(Pagine& pagine, std::uint32_t prima) {
  std::set<std::uint32_t> viste;
  for (std::uint32_t numero = prima; numero != 0;) {
    const Ottetti pagina = pagine.Pagina(numero);
    Esigi(pagina[0] == static_cast<std::uint8_t>(TipoPagina::Tabella));
    Esigi(viste.insert(numero).second);
    const Ottetti parte = dati_.empty() ? pagina : pagina.subspan(kSeguito);
    dati_.insert(dati_.end(), parte.begin(), parte.end());
    numero = Numero32(pagina, kSuccessiva);
  }
}

std::size_t Descrizione::SaltaNomi(std::size_t posizione, std::size_t quanti) const {
  Esigi(posizione <= dati_.size());
  for (std::size_t i = 0; i < quanti; ++i) {
    Esigi(posizione + 2 <= dati_.size());
    const std::size_t lunghezza = Numero16(dati_, posizione);
    Esigi(lunghezza >= 2 && lunghezza % 2 == 0 && lunghezza <= kMassimo);
    posizione += 2 + lunghezza;
    Esigi(posizione <= dati_.size());
  }
  return posizione;
}

IndiceGrezzo Descrizione::Entrate(std::size_t quale) const {
  Esigi(quale < veri_);
  const Ottetti voce = Ottetti(dati_).subspan(inizioVeri_ + quale * kVero, kVero);
  IndiceGrezzo indice;
  for (std::size_t i = 0; i < MDB_MAX_IDX_COLS; ++i) {
    const unsigned colonna = Numero16(voce, kChiavi + i * kChiave);
    if (colonna != kNessunaColonna) indice.colonne.push_back(colonna);
  }
  indice.unico = (voce[kContrassegni] & MDB_IDX_UNIQUE) != 0;
  return indice;
}

std::vector<IndiceGrezzo> Descrizione::Indici() const {
  std::vector<IndiceGrezzo> trovati;
  std::size_t nome = inizioIndici_ + indici_ * kIndice;
  for (std::size_t i = 0; i < indici_; ++i) {
    const Ottetti voce = Ottetti(dati_).subspan(inizioIndici_ + i * kIndice, kIndice);
    const std::size_t lunghezza = Numero16(dati_, nome);
    if (voce[kGenere] != kDiRelazione) {
      trovati.push_back(Entrate(Numero32(voce, kQualeVero)));
      trovati.back().nome = Testo(pagine_, Ottetti(dati_).subspan(nome + 2, lunghezza));
    }
    nome += 2 + lunghezza;
  }
  return trovati;
}

void Descrizione::Esigi(bool sano) const {
  if (!sano) pagine_.Danno(dove_);
}

}  // namespace torvi::jet
