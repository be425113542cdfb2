// One connection to the engine: the prepared statements it keeps, what it knows of the tables, and
// the engine's failures as the platform's errors. Private to archive/.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <QList>
#include <QString>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "archive/campo.h"
#include "archive/errore.h"
#include "archive/istruzione_motore.h"
#include "archive/nomi_colonne.h"

namespace torvi {

// A statement that the engine has prepared, with the names of its columns.
struct Preparata {
  std::unique_ptr<IstruzioneMotore> motore;
  QString tabella;                             // the one table whose rows can be changed through it
  std::shared_ptr<const NomiColonne> colonne;  // without the row number, where `tabella` is set

  [[nodiscard]] int Spostamento() const { return tabella.isEmpty() ? 0 : 1; }
};

[[nodiscard]] ErroreEsecuzione DaMotore(const SQLite::Exception& guasto, const QString& dettaglio);

struct InfoTabella {
  QString nome;  // as the schema spells it
  NomiColonne colonne;
  std::vector<bool> numeriche;  // columns that take only numbers
  std::string numeroRiga;       // the counter, empty where the table has none
  std::unordered_map<std::string, std::string> indici;  // lower-case index name to its first column
};

class Connessione : public std::enable_shared_from_this<Connessione> {
  // The idle statements of one text. Entries stay as long as the connection: a loan points here.
  struct Scaffale {
    std::vector<std::unique_ptr<Preparata>> libere;
    int prestate = 0;
  };

 public:
  // `percorso` is what messages name.
  Connessione(QString percorso, std::unique_ptr<SQLite::Database> motore);
  Connessione(const Connessione&) = delete;
  Connessione& operator=(const Connessione&) = delete;
  ~Connessione();

  // A statement lent by the cache: it goes back, reset, when the handle goes.
  class Prestito {
   public:
    Prestito() = default;
    Prestito(std::shared_ptr<Connessione> di, Scaffale& scaffale,
             std::unique_ptr<Preparata> preparata);
    Prestito(Prestito&&) noexcept = default;
    Prestito& operator=(Prestito&& altro) noexcept;
    ~Prestito() { Restituisci(); }
    [[nodiscard]] Preparata* operator->() const { return preparata_.get(); }
    [[nodiscard]] explicit operator bool() const { return preparata_ != nullptr; }
    void Restituisci() noexcept;

   private:
    std::shared_ptr<Connessione> di_;
    Scaffale* scaffale_ = nullptr;
    std::unique_ptr<Preparata> preparata_;
  };
  // In the system's dialect, or already in the engine's.
  [[nodiscard]] Prestito Prepara(const QString& istruzione);
  [[nodiscard]] Prestito PreparaMotore(const std::string& sql);
  [[nodiscard]] const InfoTabella& Tabella(const QString& nome);  // error 3078
  [[nodiscard]] QStringList Tabelle();

  // Runs a statement that gives no rows; how many rows it changed.
  qint64 Esegui(const Prestito& prestito, const QList<Campo>& parametri);
  void LegaTutti(const Prestito& prestito, const QList<Campo>& parametri) const;
  // One step; false at the end.
  bool Passo(const Prestito& prestito) const;
  [[nodiscard]] qint64 UltimaRiga() const { return motore_->getLastInsertRowid(); }

  void IniziaUnita();
  void ConcludiUnita();
  [[nodiscard]] bool InUnita() const { return unita_ > 0; }
  void Chiudi();
  [[nodiscard]] bool Chiusa() const { return motore_ == nullptr; }
  void RichiediAperta() const;  // error 3420
  [[nodiscard]] const QString& Percorso() const { return percorso_; }

 private:
  [[nodiscard]] Scaffale& ScaffaleDi(const QString& istruzione);
  [[nodiscard]] Prestito Presta(Scaffale& scaffale, std::unique_ptr<Preparata> nuova);
  [[nodiscard]] std::unique_ptr<Preparata> Nuova(const std::string& sql, const QString& dettaglio);
  [[nodiscard]] InfoTabella LeggiTabella(const QString& nome);

  QString percorso_;
  std::unique_ptr<SQLite::Database> motore_;
  std::unordered_map<QString, Scaffale> dialetto_;
  // Where the literals of the program were found the time before, by their addresses.
  std::array<std::pair<const QString, Scaffale>*, 64> recenti_{};
  std::unordered_map<std::string, Scaffale> interne_;  // already in the engine's words
  std::vector<Preparata*> prestate_;
  std::unordered_map<std::string, InfoTabella> tabelle_;
  int unita_ = 0;
};

}  // namespace torvi
