#include "archive/jet_definizione.h"

#include <algorithm>

#include "archive/jet_descrizione.h"
#include "archive/jet_mappa.h"
#include "archive/per_nome.h"

namespace torvi::jet {
namespace {

// Where things stand on a definition page.
constexpr std::size_t kRighe = 16;
constexpr std::size_t kContatore = 20;
constexpr std::size_t kMappa = 55;

struct LiberaTabella {
  void operator()(MdbTableDef* tabella) const { mdb_free_tabledef(tabella); }
};
using TabellaDellaLibreria = std::unique_ptr<MdbTableDef, LiberaTabella>;

// How a type is declared, and how many bytes a value of it fills; 0 where the column says it.
struct VoceTipo {
  int tipo;
  TipoColonna colonna;
  std::size_t larghezza;
};
constexpr VoceTipo kTipi[] = {
    {MDB_BOOL, TipoColonna::Logico, 0},  {MDB_BYTE, TipoColonna::Intero, 1},
    {MDB_INT, TipoColonna::Intero, 2},   {MDB_LONGINT, TipoColonna::Intero, 4},
    {MDB_MONEY, TipoColonna::Reale, 8},  {MDB_FLOAT, TipoColonna::Reale, 4},
    {MDB_DOUBLE, TipoColonna::Reale, 8}, {MDB_DATETIME, TipoColonna::Data, 8},
    {MDB_BINARY, TipoColonna::Memo, 0},  {MDB_TEXT, TipoColonna::Testo, 0},
    {MDB_OLE, TipoColonna::Memo, 0},     {MDB_MEMO, TipoColonna::Memo, 0},
    {MDB_REPID, TipoColonna::Testo, 16}, {MDB_NUMERIC, TipoColonna::Testo, 17},
};

std::span<MdbColumn* const> Colonne(const MdbTableDef& tabella) {
  return {reinterpret_cast<MdbColumn* const*>(tabella.columns->pdata), tabella.columns->len};
}

// What a name may hold where Jet itself made it; statements put it between brackets.
bool NomeSano(const QString& nome) {
  return !nome.isEmpty() && std::none_of(nome.begin(), nome.end(), [](QChar c) {
    return c < QLatin1Char(' ') || c == QLatin1Char('[') || c == QLatin1Char(']');
  });
}

bool AggiungiColonna(Definizione& definizione, const MdbColumn& colonna) {
  const auto* tipo = std::find_if(std::begin(kTipi), std::end(kTipi), [&](const VoceTipo& voce) {
    return voce.tipo == colonna.col_type;
  });
  if (tipo == std::end(kTipi) || !NomeSano(QString::fromUtf8(colonna.name))) return false;
  Colonna nuova{QString::fromUtf8(colonna.name), tipo->colonna, 0, {}};
  if (colonna.col_type == MDB_TEXT) nuova.larghezza = colonna.col_size / 2;
  if (colonna.col_type == MDB_LONGINT && colonna.is_long_auto) nuova.tipo = TipoColonna::Contatore;
  auto& colonne = definizione.tabella.colonne;
  if (PerNome(colonne, nuova.nome) != nullptr) return false;
  colonne.push_back(nuova);
  definizione.colonne.push_back(
      {colonna.col_type, static_cast<std::size_t>(colonna.col_num), colonna.is_fixed != 0,
       static_cast<std::size_t>(colonna.fixed_offset), colonna.var_col_num,
       tipo->larghezza != 0 ? tipo->larghezza : static_cast<std::size_t>(colonna.col_size),
       tipo->larghezza, colonna.col_scale, colonna.col_prec});
  return true;
}

bool AggiungiIndice(Definizione& definizione, const IndiceGrezzo& indice) {
  Indice nuovo{indice.nome, {}, indice.unico};
  for (const unsigned numero : indice.colonne) {
    const auto colonna =
        std::find_if(definizione.colonne.begin(), definizione.colonne.end(),
                     [&](const ColonnaJet& candidata) { return candidata.numero == numero; });
    if (colonna == definizione.colonne.end()) return false;
    nuovo.colonne += definizione.tabella.colonne[colonna - definizione.colonne.begin()].nome;
  }
  auto& indici = definizione.tabella.indici;
  const bool sano = NomeSano(nuovo.nome) && !nuovo.colonne.isEmpty();
  if (!sano || PerNome(indici, nuovo.nome) != nullptr) return false;
  indici.push_back(nuovo);
  return true;
}

}  // namespace

Definizione LeggiDefinizione(Pagine& pagine, const QString& nome, std::uint32_t pagina) {
  const Descrizione descrizione(pagine, pagina, nome);
  descrizione.Esigi(NomeSano(nome));
  Definizione definizione;
  definizione.tabella.nome = nome;
  definizione.pagina = pagina;
  const Ottetti prima = pagine.Pagina(pagina);
  definizione.righe = Numero32(prima, kRighe);
  // A counter of random numbers may have given a negative one last.
  definizione.ultimoContatore = static_cast<std::int32_t>(Numero32(prima, kContatore));
  definizione.pagineRighe = PagineDellaMappa(pagine, Numero32(prima, kMappa));

  MdbCatalogEntry voce{};
  voce.mdb = pagine.Motore();
  voce.object_type = MDB_TABLE;
  voce.table_pg = pagina;
  const TabellaDellaLibreria tabella(mdb_read_table(&voce));
  pagine.Dimentica();
  descrizione.Esigi(tabella != nullptr && mdb_read_columns(tabella.get()) != nullptr);
  definizione.conVariabili = tabella->num_var_cols > 0;
  for (const MdbColumn* colonna : Colonne(*tabella)) {
    descrizione.Esigi(AggiungiColonna(definizione, *colonna));
  }
  const auto& colonne = definizione.tabella.colonne;
  descrizione.Esigi(std::count_if(colonne.begin(), colonne.end(), [](const Colonna& colonna) {
                      return colonna.tipo == TipoColonna::Contatore;
                    }) <= 1);
  for (const IndiceGrezzo& indice : descrizione.Indici()) {
    descrizione.Esigi(AggiungiIndice(definizione, indice));
  }
  return definizione;
}

}  // namespace torvi::jet
