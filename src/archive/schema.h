// The tables of an archive and of the norm catalogue, as rows of tables: names spelled as the
// system spells them, types as its statements need them.
#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <vector>

namespace torvi {

enum class TipoColonna {
  Contatore,  // assigned by the engine, never used twice
  Intero,
  Testo,  // `larghezza` characters, 0 where the system sets none
  Memo,
  Logico,
  Data,  // a Date/Time of a genuine Jet file, kept as text dd/mm/yyyy (and hh:mm:ss if any)
  Reale,
};

struct Colonna {
  QString nome;
  TipoColonna tipo = TipoColonna::Testo;
  int larghezza = 0;
  QString predefinito = {};  // default as a literal, empty where there is none
};

struct Indice {
  QString nome;  // "PrimaryKey", "cper"...
  QStringList colonne;
  bool unico = false;
};

struct Tabella {
  QString nome;
  std::vector<Colonna> colonne;
  std::vector<Indice> indici;
};

// What stands in the header of a file made here; other tools show it as the file's application.
inline constexpr int kMarchioArchivio = 0x546F7276;
// A long text fits whole into a page of this size.
inline constexpr const char* kPagine = "PRAGMA page_size = 8192";

[[nodiscard]] const std::vector<Tabella>& SchemaArchivio();
[[nodiscard]] const std::vector<Tabella>& SchemaCatalogo();  // catalogo norme.mdb

// The statements that make a table and its indexes. An index is stored as "table.index", since
// the engine wants its names unique in the file; one named PrimaryKey on the counter alone is the
// row number itself and has no statement. Text is compared by the collation ITALIANO.
[[nodiscard]] QStringList IstruzioniTabella(const Tabella& tabella);
[[nodiscard]] QString NomeIndice(const QString& tabella, const QString& indice);

// A new database file with these tables, empty. It takes its name only when it is complete. The
// file must not exist yet: error 75.
void CreaDatabase(const QString& percorso, std::span<const Tabella> tabelle);
// The tables alone, into an empty file.
void ScriviTabelle(const QString& percorso, std::span<const Tabella> tabelle);

}  // namespace torvi
