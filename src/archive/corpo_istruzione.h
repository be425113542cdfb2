// The rows of a statement, read one by one. Private to archive/.
#pragma once

#include "archive/corpo.h"

namespace torvi {

class CorpoIstruzione final : public Recordset::Corpo {
 public:
  CorpoIstruzione(std::shared_ptr<Connessione> connessione, QString istruzione,
                  QList<Campo> parametri);

  [[nodiscard]] bool Eof() override;
  [[nodiscard]] bool Bof() override;
  void MoveFirst() override;
  void MoveLast() override;
  void MoveNext() override;
  void MovePrevious() override;
  void Index(std::string_view nome) override;
  void Seek(const Campo& chiave) override;
  [[nodiscard]] bool NoMatch() const override { return false; }
  [[nodiscard]] torvi::Riga Copia() override;
  [[nodiscard]] qint64 Bookmark() override;
  void Bookmark(qint64 riga) override;

 protected:
  [[nodiscard]] const NomiColonne& Colonne() const override { return *colonne_; }
  [[nodiscard]] const InfoTabella& TabellaDaScrivere() override;
  [[nodiscard]] Campo Valore(int colonna) override;
  void PrimaDiScrivere() override { TieniTutte(); }
  void RigaCambiata() override;
  void RigaCancellata() override;

 private:
  struct Riga {
    qint64 numero = 0;
    bool cancellata = false;
    std::vector<Campo> valori;
  };
  void Esegui();
  void Avanza();
  void TieniTutte();
  [[nodiscard]] Riga LeggiRiga() const;
  [[nodiscard]] Riga& Corrente();
  void RichiediRighe() const;

  QString istruzione_;
  QList<Campo> parametri_;
  QString tabella_;
  std::shared_ptr<const NomiColonne> colonne_;
  Connessione::Prestito aperta_;  // while rows are read forward; none at the end
  bool vuota_ = false;
  std::optional<std::vector<Riga>> tenute_;  // all rows, once something asked to go back
  qint64 posizione_ = 0;                     // from 0; -1 before the first row
};

}  // namespace torvi
