#include "archive/jet_definizione.h"

#include <algorithm>
#include <set>

#include "archive/jet_mappa.h"

namespace torvi::jet {
namespace {

// Where things stand on a definition page.
constexpr std::size_t kSuccessiva = 4;
constexpr std::size_t kRighe = 16;
constexpr std::size_t kContatore = 20;
constexpr std::size_t kQuanteColonne = 45;
constexpr std::size_t kQuantiIndici = 47;
constexpr std::size_t kQuantiIndiciVeri = 51;
constexpr std::size_t kMappa = 55;
constexpr std::size_t kMappaLiberi = 59;
constexpr std::size_t kDescrizioni = 63;
constexpr std::size_t kContinua = 8;  // where a further page of the definition goes on

// How long the entries are, and what is read in them.
constexpr std::size_t kContoIndice = 12;
constexpr std::size_t kColonna = 25;
constexpr std::size_t kNumeroColonna = 5;
constexpr std::size_t kIndiceVero = 52;
constexpr std::size_t kChiavi = 4;
constexpr std::size_t kChiave = 3;
constexpr std::size_t kIndice = 28;

constexpr std::size_t kMassimo = 255;
constexpr unsigned kNessunaColonna = 0xffff;
constexpr int kIndiceDiRelazione = 2;

struct LiberaTabella {
  void operator()(MdbTableDef* tabella) const { mdb_free_tabledef(tabella); }
};
using TabellaDellaLibreria = std::unique_ptr<MdbTableDef, LiberaTabella>;

// Tests a definition from end to end, so that the library reads nothing outside it.
class Controllo {
 public:
  Controllo(Pagine& pagine, std::uint32_t prima, const QString& nome)
      : pagine_(pagine), dove_(QStringLiteral("la definizione della tabella ") + nome) {
    for (std::uint32_t numero = prima; numero != 0;) {
      const Ottetti pagina = pagine.Pagina(numero);
      Esigi(pagina[0] == static_cast<std::uint8_t>(TipoPagina::Tabella));
      Esigi(viste_.insert(numero).second);
      const Ottetti parte = dati_.empty() ? pagina : pagina.subspan(kContinua);
      dati_.insert(dati_.end(), parte.begin(), parte.end());
      numero = Numero32(pagina, kSuccessiva);
    }
  }

  void Esegui() {
    const std::size_t colonne = Numero16(dati_, kQuanteColonne);
    const std::size_t indici = Numero32(dati_, kQuantiIndici);
    const std::size_t veri = Numero32(dati_, kQuantiIndiciVeri);
    Esigi(colonne >= 1 && colonne <= kMassimo && veri <= indici && indici <= kMassimo);
    const std::size_t inizioColonne = kDescrizioni + veri * kContoIndice;
    const std::size_t inizioIndici = SaltaNomi(inizioColonne + colonne * kColonna, colonne);
    SaltaNomi(inizioIndici + veri * kIndiceVero + indici * kIndice, indici);

    std::set<unsigned> numeri{kNessunaColonna};
    for (std::size_t i = 0; i < colonne; ++i) {
      numeri.insert(Numero16(dati_, inizioColonne + i * kColonna + kNumeroColonna));
    }
    for (std::size_t i = 0; i < veri * MDB_MAX_IDX_COLS; ++i) {
      const std::size_t indice = inizioIndici + i / MDB_MAX_IDX_COLS * kIndiceVero;
      Esigi(numeri.contains(Numero16(dati_, indice + kChiavi + i % MDB_MAX_IDX_COLS * kChiave)));
    }
    (void)pagine_.RigaLontana(Numero32(dati_, kMappaLiberi));
  }

  void Esigi(bool sano) const {
    if (!sano) pagine_.Danno(dove_);
  }

 private:
  std::size_t SaltaNomi(std::size_t posizione, std::size_t quanti) const {
    for (std::size_t i = 0; i < quanti; ++i) {
      Esigi(posizione + 2 <= dati_.size());
      const std::size_t lunghezza = Numero16(dati_, posizione);
      Esigi(lunghezza >= 2 && lunghezza % 2 == 0 && lunghezza <= kMassimo);
      posizione += 2 + lunghezza;
      Esigi(posizione <= dati_.size());
    }
    return posizione;
  }

  Pagine& pagine_;
  QString dove_;
  std::set<std::uint32_t> viste_;
  std::vector<std::uint8_t> dati_;
};

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

template <typename T>
std::span<T* const> Elementi(const GPtrArray* lista) {
  if (lista == nullptr) return {};
  return {reinterpret_cast<T* const*>(lista->pdata), lista->len};
}

bool AggiungiColonna(Definizione& definizione, const MdbColumn& colonna) {
  const auto* tipo = std::find_if(std::begin(kTipi), std::end(kTipi), [&](const VoceTipo& voce) {
    return voce.tipo == colonna.col_type;
  });
  if (tipo == std::end(kTipi) || colonna.name[0] == '\0') return false;
  Colonna nuova{QString::fromUtf8(colonna.name), tipo->colonna, 0, {}};
  if (colonna.col_type == MDB_TEXT) nuova.larghezza = colonna.col_size / 2;
  if (colonna.col_type == MDB_LONGINT && colonna.is_long_auto) nuova.tipo = TipoColonna::Contatore;
  const auto& colonne = definizione.tabella.colonne;
  const bool ripetuta = std::any_of(colonne.begin(), colonne.end(), [&](const Colonna& altra) {
    return altra.nome.compare(nuova.nome, Qt::CaseInsensitive) == 0 ||
           (altra.tipo == TipoColonna::Contatore && nuova.tipo == TipoColonna::Contatore);
  });
  if (ripetuta) return false;
  definizione.tabella.colonne.push_back(nuova);
  definizione.colonne.push_back(
      {colonna.col_type, static_cast<std::size_t>(colonna.col_num), colonna.is_fixed != 0,
       static_cast<std::size_t>(colonna.fixed_offset), colonna.var_col_num,
       tipo->larghezza != 0 ? tipo->larghezza : static_cast<std::size_t>(colonna.col_size),
       tipo->larghezza, colonna.col_scale, colonna.col_prec});
  return true;
}

bool AggiungiIndice(Definizione& definizione, const MdbIndex& indice) {
  if (indice.index_type == kIndiceDiRelazione) return true;
  Indice nuovo{QString::fromUtf8(indice.name), {}, (indice.flags & MDB_IDX_UNIQUE) != 0};
  if (nuovo.nome.isEmpty() || indice.num_keys == 0 || indice.num_keys > MDB_MAX_IDX_COLS) {
    return false;
  }
  for (unsigned i = 0; i < indice.num_keys; ++i) {
    const auto posizione = static_cast<std::size_t>(indice.key_col_num[i] - 1);
    if (posizione >= definizione.colonne.size()) return false;
    nuovo.colonne += definizione.tabella.colonne[posizione].nome;
  }
  definizione.tabella.indici.push_back(nuovo);
  return true;
}

}  // namespace

Definizione LeggiDefinizione(Pagine& pagine, const QString& nome, std::uint32_t pagina) {
  Controllo controllo(pagine, pagina, nome);
  controllo.Esegui();

  MdbCatalogEntry voce{};
  voce.mdb = pagine.Motore();
  voce.object_type = MDB_TABLE;
  voce.table_pg = pagina;
  Definizione definizione;
  definizione.tabella.nome = nome;
  definizione.pagina = pagina;
  const Ottetti prima = pagine.Pagina(pagina);
  definizione.righe = Numero32(prima, kRighe);
  // A counter of random numbers may have given a negative one last.
  definizione.ultimoContatore = static_cast<std::int32_t>(Numero32(prima, kContatore));
  definizione.pagineRighe = PagineDellaMappa(pagine, Numero32(prima, kMappa));

  const TabellaDellaLibreria tabella(mdb_read_table(&voce));
  pagine.Dimentica();
  controllo.Esigi(tabella != nullptr && mdb_read_columns(tabella.get()) != nullptr);
  mdb_read_indices(tabella.get());
  definizione.conVariabili = tabella->num_var_cols > 0;
  for (const MdbColumn* colonna : Elementi<MdbColumn>(tabella->columns)) {
    controllo.Esigi(AggiungiColonna(definizione, *colonna));
  }
  for (const MdbIndex* indice : Elementi<MdbIndex>(tabella->indices)) {
    controllo.Esigi(AggiungiIndice(definizione, *indice));
  }
  return definizione;
}

}  // namespace torvi::jet
