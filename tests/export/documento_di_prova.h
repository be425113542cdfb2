// A delivery with the code tables that the export reads, and documents made row by row.
#pragma once

#include "export/scritto.h"

namespace torvi {

class DocumentiDiProva {
 public:
  // Journal 1 (RGI) with periodicity 3, bibliography types "0" and "1", one systematic code, one
  // descriptor, a small tree of older codes, the kind of source "l.".
  explicit DocumentiDiProva(const DatiConsegna& dati = {});

  CartellaDiProva cartella;
  StatoGlobale stato;

  qint64 Riga(const char* tabella, Valori valori) const;
  // Later values win over the defaults: a reference of 15/03/2001, issue 3, of journal 1...
  qint64 Riferimento(Valori valori = {}) const;
  // ...and a document without findings but those of its missing texts, authors and classes.
  qint64 Documento(Valori valori = {}) const;
  void Testo(qint64 idDoc, const char* tipo, const QString& testo) const;
  void Responsabile(qint64 idDoc, const Campo& primo, const Campo& secondo,
                    bool autore = true) const;
  // Pair of the scheme 2000 of the first systematic code; code of the scheme before.
  void Coppia(qint64 idDoc, Valori valori) const;
  void Codice1999(qint64 idDoc, qint64 idClasse) const;
  // The document of the format's description; with the catalogue that knows its act, it passes
  // every check. Once for each delivery.
  qint64 Esempio() const;

  // The state for a whole run, which sees only what is written.
  [[nodiscard]] StatoGlobale& StatoScritto();
  // Runs one field writer as the driver would.
  [[nodiscard]] Scritto Scrivi(const std::function<void(ContestoEsportazione&)>& scrittore);
  // A file of dump/, or nothing where it is not there.
  [[nodiscard]] std::string Dump(const char* nome) const;

 private:
  // One write for all rows of a test.
  std::optional<UnitaDiScrittura> unita_{std::in_place, stato.DbArchivio};
};

}  // namespace torvi
