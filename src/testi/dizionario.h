// Spelling dictionaries: pairs of files .aff and .dic, sought in `dizionari` below the application
// folder and then among those of the system. A dictionary is read when it is first asked for and
// kept.
#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <memory>

#include "testi/lingua.h"

namespace torvi {

// The name an operator reads: "italiano", "inglese".
[[nodiscard]] QString NomeLingua(Lingua lingua);

class Dizionario {
 public:
  // Both paths without doubt there. A file that is no dictionary: error 321.
  Dizionario(const QString& fileAff, const QString& fileDic);
  Dizionario(const Dizionario&) = delete;
  Dizionario& operator=(const Dizionario&) = delete;
  ~Dizionario();

  // Words with plain apostrophes.
  [[nodiscard]] bool Conosce(const QString& parola) const;
  [[nodiscard]] QStringList Suggerimenti(const QString& parola) const;

 private:
  struct Motore;
  std::unique_ptr<Motore> motore_;
};

class Dizionari {
 public:
  explicit Dizionari(QString cartellaApplicazione,
                     QString cartellaSistema = QStringLiteral("/usr/share/hunspell"));

  // The dictionary of a language. Missing: error 53, with a description that names the language,
  // the files and the folders where they may go. The next call looks again.
  [[nodiscard]] const Dizionario& Di(Lingua lingua);
  // Where the personal dictionary stands.
  [[nodiscard]] QString CartellaApplicazione() const { return cartellaApplicazione_; }

 private:
  QString cartellaApplicazione_;
  QString cartellaSistema_;
  std::map<Lingua, Dizionario> aperti_;
};

}  // namespace torvi
