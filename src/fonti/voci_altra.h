// The kinds of act of the form for all law that is not Italian: what each lists, shows and needs.
#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>
#include <span>

#include "archive/database.h"

namespace torvi {

// The captions of the tabs, which are the headers of ComboFonte too, by their index.
[[nodiscard]] std::span<const char16_t* const> SchedeAltra();

enum class Libero : std::uint8_t { Spento, Acceso, SenzaEtichetta };
// What the act is taken from, and what is missing without it.
enum class Atto : std::uint8_t { NonServe, TestoLibero, Elenco, ElencoOVoce };

struct VoceAltra {
  int indice;
  const char16_t* voce;
  const char* codice;  // for the composer; of tab 4 the group
  bool estremi;
  bool ripartizioni;
  Libero libero;
  std::optional<bool> altro;  // FrameAltro; empty: left as it is
  Atto atto;
  const char* istruzione = nullptr;  // the acts listed; null: none from the archive
  const char* colonna = nullptr;
};
[[nodiscard]] std::span<const VoceAltra> VociAltra();
// Null for a header.
[[nodiscard]] const VoceAltra* TrovaVoceAltra(int indice, const QString& voce);
// The items of ComboFonte, its header not among them.
[[nodiscard]] QStringList ComboFonteAltra(int indice);
// The items of lstFonte.
[[nodiscard]] QStringList ListaFonteAltra(const Database& archivio, const VoceAltra& voce);
// What cmdListaStati offers.
[[nodiscard]] QStringList ElencoStati(const Database& archivio);

// The name of the act that a composer takes: the item selected or, for the last three kinds of tab
// 4, the kind itself. Empty where it is missing; kinds that need none have an empty name.
[[nodiscard]] std::optional<QString> AttoScelto(const VoceAltra& voce,
                                                const std::optional<QString>& lstFonte,
                                                const QString& txtLibero);

// The lines of the form's help on how to write, and its title.
[[nodiscard]] QString TestoFormalismo();
[[nodiscard]] QString TitoloFormalismo();

}  // namespace torvi
