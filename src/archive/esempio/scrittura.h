// Writes sample documents into an empty delivery, as the save of a document would: what documents
// share is stored once.
#pragma once

#include <unordered_map>

#include "archive/esempio/documento.h"

namespace torvi::esempio {

// A table that rows are added to.
class TavolaScritta {
 public:
  TavolaScritta(const Database& archivio, const char* nome);
  // Columns and values; Null stays unwritten. Result: the counter of the new row.
  qint64 Aggiungi(std::initializer_list<std::pair<const char*, Campo>> valori);

 private:
  Recordset righe_;
};

class Scrittura {
 public:
  explicit Scrittura(const Database& archivio);
  void ScriviInformazioni();
  void Scrivi(const Documento& documento);

 private:
  // The keys of the rows of a table that documents share, by what makes two of them equal.
  using Comuni = std::unordered_map<QString, qint64>;

  [[nodiscard]] qint64 Riga(const Riferimento& riferimento);
  [[nodiscard]] qint64 Riga(const Persona& persona);
  [[nodiscard]] qint64 Riga(const Classe& classe);
  [[nodiscard]] qint64 Riga(const FonteCitata& fonte);
  void ScriviTesti(qint64 documento, const Documento& d);
  void ScriviLegami(qint64 documento, const Documento& d);

  TavolaScritta informazioni_, documenti_, riferimenti_, persone_, testi_, classi_, fonti_;
  TavolaScritta legamiPersone_, legamiTesti_, legamiClassi_, legamiClassi1999_, legamiFonti_;
  Comuni riferimentiScritti_, personeScritte_, classiScritte_, fontiScritte_;
};

}  // namespace torvi::esempio
