// The pieces that citations are put together from.
#pragma once

#include <span>

#include "fonti/controlli_fonte.h"
#include "shell/dialoghi.h"
#include "shell/righe.h"

namespace torvi {

// What a composer came to: a composed row; a row that stays uncomposed; a row to be taken away.
enum class EsitoFonte { Tolta = -1, Mancata = 0, Composta = 1 };

// A control that adds to the citation where it is filled, and fills a field of the row.
struct Pezzo {
  const char16_t* prima;
  QString ControlliFonte::*controllo;
  QString RigaFonte::*campo;
  const char16_t* dopo = u"";
  qsizetype caratteri = -1;  // how many the citation takes; negative: all
};

// A combo on its placeholder is not filled, a text that is empty neither.
[[nodiscard]] bool Riempito(const ControlliFonte& controlli, QString ControlliFonte::*controllo);
// Each piece that is filled, in order.
void Aggiungi(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
              std::span<const Pezzo> pezzi);
// Appends a piece that must be filled. False after its message.
[[nodiscard]] bool AggiungiRichiesto(QString& testo, RigaFonte& riga,
                                     const ControlliFonte& controlli, const Pezzo& pezzo,
                                     const QString& mancanza, Dialoghi& dialoghi);

// "art. ", its adverb, " comma ", its adverb, " lett. ", " n. ".
[[nodiscard]] std::span<const Pezzo> Articolo();
// Day, month, year.
[[nodiscard]] std::span<const Pezzo> Data();
// Day, month, year, number of the act.
[[nodiscard]] std::span<const Pezzo> Estremi();
// The free text in brackets.
[[nodiscard]] std::span<const Pezzo> TestoLibero();

// Appends the name, behind a blank where there is a text so far.
void AggiungiNome(QString& testo, const QString& nome);
// Double blanks made single, in one pass: three become two.
[[nodiscard]] QString SpaziSingoli(QString testo);

}  // namespace torvi
