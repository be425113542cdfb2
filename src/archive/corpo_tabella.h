// All rows of a table. It keeps no statement open: the place in the table is the key of the current
// row, so that rows may be added, changed and deleted by anybody meanwhile. Private to archive/.
#pragma once

#include "archive/corpo.h"

namespace torvi {

class CorpoTabella final : public Recordset::Corpo {
 public:
  CorpoTabella(const std::shared_ptr<Connessione>& connessione, const QString& tabella);

  [[nodiscard]] bool Eof() override;
  [[nodiscard]] bool Bof() override;
  void MoveFirst() override;
  void MoveLast() override;
  void MoveNext() override;
  void MovePrevious() override;
  void Index(std::string_view nome) override;
  void Seek(const Campo& chiave) override;
  [[nodiscard]] bool NoMatch() const override { return noMatch_; }
  [[nodiscard]] qint64 Bookmark() override;
  void Bookmark(qint64 riga) override;

 protected:
  [[nodiscard]] const NomiColonne& Colonne() const override { return tabella_.colonne; }
  [[nodiscard]] const InfoTabella& TabellaDaScrivere() override { return tabella_; }
  [[nodiscard]] Campo Valore(int colonna) override;
  void RigaCambiata() override;
  void RigaCancellata() override { stato_ = Stato::Cancellata; }

 private:
  enum class Stato { DaIniziare, SuRiga, Cancellata, Prima, Dopo, Perduta };
  enum class Verso { Avanti, Indietro };
  void Inizia();
  void Estremo(Verso verso);
  void Vicino(Verso verso);
  [[nodiscard]] std::string Ordine(Verso verso) const;
  // Makes the first row of the statement the current one; false where it gives none.
  bool Leggi1(const std::string& condizione, const QList<Campo>& parametri,
              const std::string& ordine);
  void RichiediRiga();

  const InfoTabella& tabella_;
  std::string colonnaIndice_;  // empty: stored order
  Stato stato_ = Stato::DaIniziare;
  bool noMatch_ = false;
  qint64 numero_ = 0;
  Campo chiave_;  // of the current row in the index
  std::vector<Campo> valori_;
};

}  // namespace torvi
