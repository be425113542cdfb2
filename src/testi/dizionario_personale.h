// The words that the operators of a centre added to a dictionary: a file in UTF-8, one word a line,
// in `dizionari` below the application folder. It may be edited by hand.
#pragma once

#include <QSet>
#include <QString>

#include "testi/lingua.h"

namespace torvi {

class DizionarioPersonale {
 public:
  // A missing file is an empty dictionary; one that cannot be read is error 75.
  DizionarioPersonale(const QString& cartellaApplicazione, Lingua lingua);

  [[nodiscard]] bool Contiene(const QString& parola) const { return parole_.contains(parola); }
  // On disk too, where the file is replaced whole or not at all: error 75, and the word is not
  // taken in.
  void Aggiungi(const QString& parola);

 private:
  [[nodiscard]] QByteArray Leggi() const;

  QString percorso_;
  QSet<QString> parole_;
};

}  // namespace torvi
