// Rows of a comma-separated file as RFC 4180 has them, in UTF-8: cells may be quoted, quotes in
// them are doubled, a quoted cell may hold commas and line ends. An empty cell is Null, "" is the
// empty string. The first row names the columns.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include "archive/campo.h"
#include "archive/errore.h"

namespace torvi {

class LettoreCsv {
 public:
  // Reads the row of names too. No such file: error 53. Faults of the text are Guasto.
  explicit LettoreCsv(const QString& percorso);

  [[nodiscard]] const QStringList& Colonne() const { return colonne_; }
  // The next row, as many cells as there are columns. False at the end.
  [[nodiscard]] bool Leggi(QList<Campo>& celle);
  // What is wrong with the row read last: the description names the file and the row's first line.
  [[nodiscard]] ErroreEsecuzione Guasto(const QString& motivo,
                                        Errore numero = Errore::ConversioneTipo) const;

 private:
  [[nodiscard]] bool LeggiRiga(QList<Campo>& celle);
  [[nodiscard]] Campo LeggiCella();
  [[nodiscard]] Campo LeggiTraVirgolette();
  [[nodiscard]] bool AllaFineDellaCella() const;
  void SaltaFineRiga();

  QString nome_;
  QString testo_;
  qsizetype posto_ = 0;
  int linea_ = 1;      // of the place
  int lineaRiga_ = 1;  // on which the row read last begins
  QStringList colonne_;
};

}  // namespace torvi
