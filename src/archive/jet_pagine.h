// The pages of a Jet file and the rows on them. The library reads and decrypts; whatever the file
// says of a place in it is tested here first, since the library trusts what it reads. Private to
// archive/.
#pragma once

// First: the library would include it inside extern "C", where its templates cannot be.
#include <glib.h>

#include <mdbtools.h>

#include <QString>
#include <cstdint>
#include <memory>
#include <span>

namespace torvi::jet {

using Ottetti = std::span<const std::uint8_t>;

inline constexpr std::size_t kPagina = 4096;

enum class TipoPagina : std::uint8_t { Dati = 1, Tabella = 2, Mappa = 5 };

[[nodiscard]] std::uint16_t Numero16(Ottetti dati, std::size_t posizione);
[[nodiscard]] std::uint32_t Numero32(Ottetti dati, std::size_t posizione);

// A row as its place on a page tells it, before its values are looked at.
struct RigaGrezza {
  Ottetti ottetti;
  bool altrove = false;     // what stands here is the pointer to where the row was moved
  bool scavalcata = false;  // deleted, or reached through the pointer at its old place only
};

class Pagine {
 public:
  // No such file: error 3024; not to be read: 3051; no Jet 4 file: 3343.
  explicit Pagine(const QString& percorso);

  // The page in the buffer for rows, which is good until the next call. Outside the file: 3343.
  [[nodiscard]] Ottetti Pagina(std::uint32_t numero);
  // The same in a buffer of its own, for what the rows point to.
  [[nodiscard]] Ottetti PaginaLontana(std::uint32_t numero);
  // A pointer's upper 24 bits are a page, the lower 8 a row on it.
  [[nodiscard]] RigaGrezza RigaLontana(std::uint32_t puntatore);
  [[nodiscard]] RigaGrezza Riga(Ottetti pagina, std::size_t numero) const;
  [[nodiscard]] std::size_t QuanteRighe(Ottetti pagina) const;

  [[nodiscard]] std::uint32_t QuantePagine() const { return quante_; }
  [[nodiscard]] MdbHandle* Motore() const { return motore_.get(); }
  // The library itself has used the buffers.
  void Dimentica() { lontana_ = 0; }
  // Error 3343, which names the file, what is damaged and what to do.
  [[noreturn]] void Danno(const QString& dove) const;

 private:
  struct Chiudi {
    void operator()(MdbHandle* motore) const { mdb_close(motore); }
  };
  void RichiediPagina(std::uint32_t numero) const;

  QString percorso_;
  std::uint32_t quante_ = 0;
  std::uint32_t lontana_ = 0;  // the page in the second buffer, 0 for none
  std::unique_ptr<MdbHandle, Chiudi> motore_;
};

}  // namespace torvi::jet
