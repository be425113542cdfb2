// Phrases of titles, abstracts and notes. Marks in braces are filled by lingua.h; {F} is a source
// of the document, {AUT} "dell'A." or "degli AA.".
#pragma once

#include <QStringView>
#include <span>

namespace torvi::esempio {

using Frasi = std::span<const QStringView>;

[[nodiscard]] Frasi TitoliItaliani();
[[nodiscard]] Frasi TitoliInglesi();  // {E}: the subject in that language
[[nodiscard]] Frasi TitoliFrancesi();
[[nodiscard]] Frasi TitoliTedeschi();

[[nodiscard]] Frasi Aperture();  // first sentence of an abstract
[[nodiscard]] Frasi Sviluppi();  // those between
[[nodiscard]] Frasi Chiusure();  // the last
[[nodiscard]] Frasi SviluppiInglesi();
[[nodiscard]] Frasi VociSommario();
[[nodiscard]] Frasi InTemaDi();

[[nodiscard]] Frasi NoteAmbiente();     // text type 6
[[nodiscard]] Frasi NoteCompilatore();  // text type 5
[[nodiscard]] Frasi Convegni();

}  // namespace torvi::esempio
