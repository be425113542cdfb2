// The kinds of act of the internal-law form: what each lists, shows and asks for.
#pragma once

#include <QStringList>
#include <span>

#include "archive/database.h"

namespace torvi {

// Tabs by the index of their controls, in the order of the form.
struct SchedaInterna {
  int indice;
  const char16_t* titolo;  // caption, and header of ComboFonte
  const char* liv1;
};
[[nodiscard]] std::span<const SchedaInterna> SchedeInterna();

// Where the lines of lstElenco1 come from.
enum class ElencoInfo : quint8 { Nessuno, Province, Ministeri, Amministrazioni, Autorita, Citta };

struct VoceInterna {
  int indice;
  const char16_t* voce;
  const char* liv2;  // of the acts listed; null: none is
  bool ripartizioni;
  bool estremi;
  bool altro;
  bool regione;
  bool info2;  // the section
  ElencoInfo elenco;
  const char16_t* info1;  // caption; null: off
  const char16_t* info3;  // caption; null: off
};
// Of tabs 2 and 3, in their order.
[[nodiscard]] std::span<const VoceInterna> VociInterna();
// Null for a header, and for the kinds of tabs 1 and 4, which are acts themselves.
[[nodiscard]] const VoceInterna* TrovaVoceInterna(int indice, const QString& voce);

// The items of ComboFonte behind its header.
[[nodiscard]] QStringList ComboFonteInterna(const Database& archivio, int indice);
// The acts of a kind, in table order. `liv2` "*" stands for all, "7-8" for both ends.
[[nodiscard]] QStringList ListaFonteInterna(const Database& archivio, const QString& liv1,
                                            const QString& liv2);
[[nodiscard]] QStringList VociElenco(const Database& archivio, ElencoInfo elenco);
// The sections, by their short form.
[[nodiscard]] QStringList VociSezione(const Database& archivio);

}  // namespace torvi
