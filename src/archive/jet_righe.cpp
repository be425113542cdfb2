#include "archive/jet_righe.h"

namespace torvi::jet {
namespace {

constexpr std::size_t kProprietaria = 4;
constexpr std::size_t kMassimoColonne = 255;
constexpr int kMassimoSpostamenti = 64;

// A row: how many columns it knows, the fixed fields, the variable ones, where each of these
// begins, how many they are, and a bit for each column that is not Null.
class Smontaggio {
 public:
  Smontaggio(Ottetti riga, bool conVariabili) : riga_(riga) {
    if (riga.size() < 2) return;
    colonne_ = Numero16(riga, 0);
    const std::size_t maschera = (colonne_ + 7) / 8;
    if (colonne_ < 1 || colonne_ > kMassimoColonne || riga.size() < 2 + maschera) return;
    fine_ = riga.size() - maschera;
    maschera_ = riga.subspan(fine_);
    sana_ = !conVariabili || TrovaVariabili();
  }

  [[nodiscard]] bool Sana() const { return sana_; }

  // False where the field lies outside the row.
  [[nodiscard]] bool Estrai(const ColonnaJet& colonna, CampoGrezzo& campo) const {
    campo.presente = colonna.numero < colonne_ &&
                     (maschera_[colonna.numero / 8] >> (colonna.numero % 8) & 1) != 0;
    campo.ottetti = {};
    if (!campo.presente || colonna.tipo == MDB_BOOL) return true;
    if (colonna.fissa) return Taglia(2 + colonna.posizione, colonna.larghezza, campo);
    // A column that was added later: the rows from before do not count it.
    campo.presente = colonna.variabile < variabili_;
    if (!campo.presente) return true;
    const std::size_t inizio = InizioVariabile(colonna.variabile);
    const std::size_t seguente = InizioVariabile(colonna.variabile + 1);
    return seguente >= inizio && Taglia(inizio, seguente - inizio, campo);
  }

 private:
  [[nodiscard]] bool TrovaVariabili() {
    if (fine_ < 4) return false;
    variabili_ = Numero16(riga_, fine_ - 2);
    if (variabili_ > kMassimoColonne || fine_ < 2 + 2 + 2 * (variabili_ + 1)) return false;
    inizi_ = fine_ - 4;
    fine_ = inizi_ + 2 - 2 * (variabili_ + 1);
    return true;
  }

  // The starts stand from the last to the first; one more tells where the last field ends.
  [[nodiscard]] std::size_t InizioVariabile(std::size_t quale) const {
    return Numero16(riga_, inizi_ - 2 * quale);
  }

  [[nodiscard]] bool Taglia(std::size_t inizio, std::size_t lunghezza, CampoGrezzo& campo) const {
    if (inizio + lunghezza > fine_) return false;
    campo.ottetti = riga_.subspan(inizio, lunghezza);
    return true;
  }

  Ottetti riga_;
  Ottetti maschera_;
  std::size_t colonne_ = 0;
  std::size_t variabili_ = 0;
  std::size_t inizi_ = 0;  // where the table of the variable fields has its first entry
  std::size_t fine_ = 0;   // of the fields
  bool sana_ = false;
};

class Percorso {
 public:
  Percorso(Pagine& pagine, const Definizione& definizione,
           const std::function<void(const RigaDiCampi&)>& riga)
      : pagine_(pagine), definizione_(definizione), riga_(riga) {
    campi_.resize(definizione.colonne.size());
  }

  void Esegui() {
    for (const std::uint32_t numero : definizione_.pagineRighe) {
      if (!EDellaTabella(pagine_.Pagina(numero))) continue;  // its rows are missed in the count
      const std::size_t quante = pagine_.QuanteRighe(pagine_.Pagina(numero));
      for (std::size_t i = 0; i < quante; ++i) {
        const RigaGrezza trovata = Segui(pagine_.Riga(pagine_.Pagina(numero), i));
        if (!trovata.ottetti.empty()) Consegna(trovata.ottetti);
      }
    }
    // A file that was not closed properly may count no rows where it has some.
    if (fatte_ != definizione_.righe && definizione_.righe != 0) Danno();
  }

 private:
  [[nodiscard]] bool EDellaTabella(Ottetti pagina) const {
    return pagina[0] == static_cast<std::uint8_t>(TipoPagina::Dati) &&
           Numero32(pagina, kProprietaria) == definizione_.pagina;
  }

  // The row itself, at the end of its moves; an empty one where none begins here.
  [[nodiscard]] RigaGrezza Segui(RigaGrezza riga) {
    if (riga.scavalcata) return {};
    for (int salti = 0; riga.altrove; ++salti) {
      if (salti == kMassimoSpostamenti || riga.ottetti.size() < 4) Danno();
      const std::uint32_t puntatore = Numero32(riga.ottetti, 0);
      const Ottetti pagina = pagine_.Pagina(puntatore >> 8);
      if (!EDellaTabella(pagina)) Danno();
      riga = pagine_.Riga(pagina, puntatore & 0xff);
      if (!riga.scavalcata) Danno();
    }
    if (riga.ottetti.empty()) Danno();
    return riga;
  }

  void Consegna(Ottetti ottetti) {
    const Smontaggio smontaggio(ottetti, definizione_.conVariabili);
    if (!smontaggio.Sana()) Danno();
    for (std::size_t i = 0; i < campi_.size(); ++i) {
      if (!smontaggio.Estrai(definizione_.colonne[i], campi_[i])) Danno();
    }
    ++fatte_;
    riga_(campi_);
  }

  [[noreturn]] void Danno() const {
    pagine_.Danno(QStringLiteral("le righe della tabella ") + definizione_.tabella.nome);
  }

  Pagine& pagine_;
  const Definizione& definizione_;
  const std::function<void(const RigaDiCampi&)>& riga_;
  RigaDiCampi campi_;
  std::size_t fatte_ = 0;
};

}  // namespace

void PercorriRighe(Pagine& pagine, const Definizione& definizione,
                   const std::function<void(const RigaDiCampi&)>& riga) {
  Percorso(pagine, definizione, riga).Esegui();
}

}  // namespace torvi::jet
