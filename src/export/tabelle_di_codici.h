// The code tables that an export or a print looks up by one of their columns. They are small, so
// the first question reads a table whole; what is not found there is sought, once, and remembered.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>

#include "archive/database.h"

namespace torvi {

// A table and the column that it is looked up by.
enum class TavolaCodici : quint8 {
  FonteInterna,
  FonteCom,
  FonteInt,
  FonteCan,
  Stato,
  Ministero,
  Amministrazione,
  Autorita,
  Regione,
  Provincia,
  Citta,
  Sezione,
  Bibliografia,
  CodiceSistematico,  // tabClasse2000-S by its code
  Descrittore,        // tabClasse2000-D by its key
  CodiceDescrittore,  // the same by its code
};
inline constexpr std::size_t kTavoleCodici = 16;

// The row that was sought. None is no failure yet: reading a column is (error 3021).
class RigaCodice {
 public:
  RigaCodice() = default;
  explicit RigaCodice(Riga riga) : riga_(std::move(riga)) {}
  [[nodiscard]] bool NoMatch() const { return !riga_; }
  [[nodiscard]] const Campo& Fields(std::string_view nome) const;

 private:
  std::optional<Riga> riga_;
};

class TabelleDiCodici {
 public:
  explicit TabelleDiCodici(const Database& archivio) : archivio_(archivio) {}

  // The first row with that key; text is compared as the archive compares it. The result stays good
  // until the next search in the same table.
  [[nodiscard]] const RigaCodice& Cerca(TavolaCodici quale, const Campo& chiave);
  // Reads all tables before anybody asks.
  void LeggiTutte();

 private:
  using Chiave = std::variant<std::monostate, qint64, double, std::string>;
  struct Tavola {
    bool letta = false;
    std::unordered_map<Chiave, RigaCodice> righe;
  };
  [[nodiscard]] static Chiave ChiaveDi(const Campo& campo);
  Tavola& Letta(TavolaCodici quale);
  [[nodiscard]] RigaCodice CercaInArchivio(TavolaCodici quale, const Campo& chiave) const;

  Database archivio_;
  std::array<Tavola, kTavoleCodici> tavole_;
};

}  // namespace torvi
