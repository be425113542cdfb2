// What tables and statements have in common behind a Recordset: the row that AddNew or Edit
// prepares, and its writing. Private to archive/.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "archive/connessione.h"
#include "archive/recordset.h"

namespace torvi {

class Recordset::Corpo {
 public:
  explicit Corpo(std::shared_ptr<Connessione> connessione);
  Corpo(const Corpo&) = delete;
  Corpo& operator=(const Corpo&) = delete;
  virtual ~Corpo() = default;

  [[nodiscard]] virtual bool Eof() = 0;
  [[nodiscard]] virtual bool Bof() = 0;
  virtual void MoveFirst() = 0;
  virtual void MoveLast() = 0;
  virtual void MoveNext() = 0;
  virtual void MovePrevious() = 0;
  virtual void Index(std::string_view nome) = 0;
  virtual void Seek(const Campo& chiave) = 0;
  [[nodiscard]] virtual bool NoMatch() const = 0;
  [[nodiscard]] virtual qint64 Bookmark() = 0;
  virtual void Bookmark(qint64 riga) = 0;

  [[nodiscard]] Campo Fields(std::string_view nome) { return Fields(Colonna(nome)); }
  [[nodiscard]] Campo Fields(int colonna);
  [[nodiscard]] int Colonna(std::string_view nome) const;
  [[nodiscard]] int QuanteColonne() const { return static_cast<int>(Colonne().Quante()); }
  [[nodiscard]] bool HaCampo(std::string_view nome) const;
  [[nodiscard]] virtual Riga Copia();
  void Assegna(std::string_view nome, const Campo& valore);
  void AddNew();
  void Edit();
  void Update();
  void Delete();
  [[nodiscard]] qint64 LastModified() const { return ultimaModificata_; }
  void RichiediAperta() const { connessione_->RichiediAperta(); }

 protected:
  [[nodiscard]] virtual const NomiColonne& Colonne() const = 0;
  // The table whose rows can be changed; error 3027 where there is none.
  [[nodiscard]] virtual const InfoTabella& TabellaDaScrivere() = 0;
  // A column of the current row; error 3021 without one.
  [[nodiscard]] virtual Campo Valore(int colonna) = 0;
  // Called before rows are changed, and after the row at hand was: its new values, or its end.
  virtual void PrimaDiScrivere() {}
  virtual void RigaCambiata() = 0;
  virtual void RigaCancellata() = 0;

  [[nodiscard]] Connessione& Motore() const { return *connessione_; }

 private:
  enum class Preparazione { Nessuna, Nuova, Modifica };
  void Inserisci(const InfoTabella& tabella);
  void Aggiorna(const InfoTabella& tabella);

  std::shared_ptr<Connessione> connessione_;
  Preparazione preparazione_ = Preparazione::Nessuna;
  std::vector<std::pair<std::string, Campo>> preparati_;  // columns that were assigned
  qint64 ultimaModificata_ = 0;
};

}  // namespace torvi
