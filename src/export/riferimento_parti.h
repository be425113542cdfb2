// The parts of a journal reference that need rules of their own: date, issue, pages.
#pragma once

#include <QString>
#include <QStringList>

namespace torvi {

// Marks the abbreviations and the year of a citation for the downstream archive.
inline constexpr QChar kSegno{char16_t{6}};

// `Data` without its slashes: day, month and year by position. A date without a year has four
// digits, which are its year too.
class CifreData {
 public:
  explicit CifreData(QString data) : cifre_(data.remove(QLatin1Char('/'))) {}
  [[nodiscard]] const QString& Cifre() const { return cifre_; }
  [[nodiscard]] QString Giorno() const { return cifre_.mid(0, 2); }
  [[nodiscard]] QString Mese() const { return cifre_.mid(2, 2); }
  [[nodiscard]] QString Anno() const { return cifre_.right(4); }

 private:
  QString cifre_;
};

// Behind a blank, where something stands before it: the name, "=" and the value.
void AggiungiSottocampo(QString& codificato, const char* nome, const QString& valore);

// What a part adds to the coded reference and to the citation, and the messages it raises.
struct Parte {
  QString codice = {};
  QString citazione = {};
  QStringList messaggi = {};
};

// Day and month between brackets, as they stand behind an issue, and what is wrong with them.
[[nodiscard]] Parte ParteGiornoMese(const CifreData& data);
// Padded to nine; the two sides of a hyphen to four each.
[[nodiscard]] QString CodiceFascicolo(const QString& fascicolo);
// Both sides of the first hyphen, each padded to four.
[[nodiscard]] QString Intervallo(const QString& testo);

// The code is the bare value.
[[nodiscard]] Parte ParteData(const CifreData& data, const QString& annoProduzione);
[[nodiscard]] Parte ParteFascicolo(const QString& fascicolo, const CifreData& data);
[[nodiscard]] Parte PartePagine(const QString& pagine);

}  // namespace torvi
