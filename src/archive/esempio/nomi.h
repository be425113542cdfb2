// Names of people, bodies, parties and works that the sample documents mention.
#pragma once

#include <QStringView>
#include <span>

namespace torvi::esempio {

[[nodiscard]] std::span<const QStringView> Cognomi();
[[nodiscard]] std::span<const QStringView> Prenomi();
[[nodiscard]] std::span<const QStringView> EntiCollettivi();
[[nodiscard]] std::span<const QStringView> Parti();       // "Alfa c. Beta"
[[nodiscard]] std::span<const QStringView> Categorie();   // of collective agreements
[[nodiscard]] std::span<const QStringView> Discipline();  // of sport
[[nodiscard]] std::span<const QStringView> Oggetti();     // of international acts

struct FonteStraniera {
  QStringView testo;
  QStringView stato;
};
[[nodiscard]] std::span<const FonteStraniera> NormeStraniere();
[[nodiscard]] std::span<const FonteStraniera> SentenzeStraniere();
[[nodiscard]] std::span<const QStringView> NormeCanoniche();

struct FonteStorica {
  QStringView tp;
  QStringView testo;
};
[[nodiscard]] std::span<const FonteStorica> FontiStoriche();

}  // namespace torvi::esempio
