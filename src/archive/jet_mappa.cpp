#include "archive/jet_mappa.h"

namespace torvi::jet {
namespace {

// A map is one row: a kind, and then either the first page and a bit for each page from there, or
// the numbers of pages that hold nothing but bits.
enum Genere : std::uint8_t { kInLinea = 0, kPerPagine = 1 };
constexpr std::size_t kBitInLinea = 5;
constexpr std::size_t kBitDiPagina = 4;
constexpr std::uint64_t kPagineDescritte = (kPagina - kBitDiPagina) * 8;

void Aggiungi(std::vector<std::uint32_t>& elenco, const Pagine& pagine, std::uint64_t prima,
              Ottetti bit) {
  for (std::size_t i = 0; i < bit.size() * 8; ++i) {
    if ((bit[i / 8] >> (i % 8) & 1) == 0) continue;
    if (prima + i >= pagine.QuantePagine()) {
      pagine.Danno(QStringLiteral("manca la pagina %1").arg(prima + i));
    }
    elenco.push_back(static_cast<std::uint32_t>(prima + i));
  }
}

}  // namespace

std::vector<std::uint32_t> PagineDellaMappa(Pagine& pagine, std::uint32_t puntatore) {
  const Ottetti riga = pagine.RigaLontana(puntatore).ottetti;
  const std::vector<std::uint8_t> mappa(riga.begin(), riga.end());
  std::vector<std::uint32_t> elenco;
  if (mappa.size() >= kBitInLinea && mappa[0] == kInLinea) {
    Aggiungi(elenco, pagine, Numero32(mappa, 1), Ottetti(mappa).subspan(kBitInLinea));
    return elenco;
  }
  if (mappa.empty() || mappa[0] != kPerPagine) pagine.Danno(QStringLiteral("una mappa di pagine"));
  for (std::size_t i = 0; 1 + 4 * (i + 1) <= mappa.size(); ++i) {
    const std::uint32_t numero = Numero32(mappa, 1 + 4 * i);
    if (numero == 0) continue;
    const Ottetti pagina = pagine.PaginaLontana(numero);
    if (pagina[0] != static_cast<std::uint8_t>(TipoPagina::Mappa)) {
      pagine.Danno(QStringLiteral("una mappa di pagine"));
    }
    Aggiungi(elenco, pagine, i * kPagineDescritte, pagina.subspan(kBitDiPagina));
  }
  return elenco;
}

}  // namespace torvi::jet
