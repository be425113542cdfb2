#include "archive/travaso_jet.h"

#include <SQLiteCpp/Transaction.h>

#include <algorithm>
#include <limits>

#include "archive/connessione.h"
#include "archive/per_nome.h"

namespace torvi {
namespace {

constexpr int kRigheFraAvvisi = 200;

const Tabella* NelloSchema(const QString& nome) {
  const Tabella* tabella = PerNome(SchemaArchivio(), nome);
  return tabella != nullptr ? tabella : PerNome(SchemaCatalogo(), nome);
}

int Contatore(const Tabella& tabella) {
  const auto colonna =
      std::find_if(tabella.colonne.begin(), tabella.colonne.end(),
                   [](const Colonna& una) { return una.tipo == TipoColonna::Contatore; });
  return colonna == tabella.colonne.end() ? -1
                                          : static_cast<int>(colonna - tabella.colonne.begin());
}

std::string Nome(const QString& nome) { return '[' + nome.toStdString() + ']'; }

void LegaRiga(IstruzioneMotore& istruzione, const std::vector<Campo>& riga) {
  for (std::size_t i = 0; i < riga.size(); ++i) istruzione.Lega(static_cast<int>(i) + 1, riga[i]);
}

IstruzioneMotore Inserimento(SQLite::Database& motore, const Tabella& tabella) {
  std::string posti = "?";
  for (std::size_t i = 1; i < tabella.colonne.size(); ++i) posti += ",?";
  return {motore, "INSERT INTO " + Nome(tabella.nome) + " VALUES (" + posti + ")"};
}

// A number that the counter gave to a row deleted since is not given again.
void PortaContatore(SQLite::Database& motore, const Tabella& tabella, qint64 ultimo) {
  if (Contatore(tabella) < 0) return;
  IstruzioneMotore massimo(motore, "SELECT max(?, ifnull(max(" +
                                       Nome(tabella.colonne[Contatore(tabella)].nome) +
                                       "), 0)) FROM " + Nome(tabella.nome));
  massimo.Lega(1, ultimo);
  massimo.Passo();
  IstruzioneMotore togli(motore, "DELETE FROM sqlite_sequence WHERE name = ?");
  togli.Lega(1, tabella.nome);
  togli.Esegui();
  IstruzioneMotore metti(motore, "INSERT INTO sqlite_sequence (name, seq) VALUES (?, ?)");
  metti.Lega(1, tabella.nome);
  metti.Lega(2, massimo.Leggi(0));
  metti.Esegui();
}

void VersaTabella(const LettoreJet& lettore, SQLite::Database& motore, const Tabella& tabella,
                  Contarighe& conto) {
  const QStringList istruzioni = IstruzioniTabella(tabella);
  motore.exec(istruzioni.front().toStdString());
  IstruzioneMotore inserimento = Inserimento(motore, tabella);
  lettore.LeggiRighe(tabella.nome, [&](const std::vector<Campo>& riga) {
    LegaRiga(inserimento, riga);
    inserimento.Esegui();
    conto.Riga();
  });
  // An index over rows that are there is made in one go.
  for (const QString& istruzione : istruzioni.mid(1)) motore.exec(istruzione.toStdString());
  PortaContatore(motore, tabella, lettore.UltimoContatore(tabella.nome));
}

bool RigaUguale(const IstruzioneMotore& istruzione, const std::vector<Campo>& riga) {
  for (std::size_t i = 0; i < riga.size(); ++i) {
    if (istruzione.Leggi(static_cast<int>(i)) != riga[i]) return false;
  }
  return true;
}

bool StesseColonne(SQLite::Database& motore, const Tabella& tabella) {
  const IstruzioneMotore righe(motore, "SELECT * FROM " + Nome(tabella.nome));
  if (righe.NumeroColonne() != static_cast<int>(tabella.colonne.size())) return false;
  for (int i = 0; i < righe.NumeroColonne(); ++i) {
    if (tabella.colonne[i].nome != QString::fromUtf8(righe.NomeColonna(i))) return false;
  }
  return true;
}

bool StessoContatore(SQLite::Database& motore, const Tabella& tabella, qint64 ultimo) {
  if (Contatore(tabella) < 0) return true;
  IstruzioneMotore contatore(motore, "SELECT seq FROM sqlite_sequence WHERE name = ?");
  contatore.Lega(1, tabella.nome);
  return contatore.Passo() && contatore.Leggi(0).Intero() >= ultimo;
}

// Rows stand in the order of the file, or under the number that their counter gave them.
bool StesseRighe(const LettoreJet& lettore, SQLite::Database& motore, const Tabella& tabella,
                 Contarighe& conto) {
  const int contatore = Contatore(tabella);
  std::string sql = "SELECT * FROM " + Nome(tabella.nome);
  sql +=
      contatore < 0 ? " NOT INDEXED" : " WHERE " + Nome(tabella.colonne[contatore].nome) + " = ?";
  IstruzioneMotore righe(motore, sql);
  bool uguali = true;
  qint64 lette = 0;
  lettore.LeggiRighe(tabella.nome, [&](const std::vector<Campo>& riga) {
    if (contatore >= 0) {
      righe.Azzera();
      righe.Lega(1, riga[contatore]);
    }
    uguali = uguali && righe.Passo() && RigaUguale(righe, riga);
    ++lette;
    conto.Riga();
  });
  IstruzioneMotore quante(motore, "SELECT count(*) FROM " + Nome(tabella.nome));
  return uguali && quante.Passo() && quante.Leggi(0).Intero() == lette;
}

}  // namespace

Tabella Completata(Tabella tabella) {
  const Tabella* schema = NelloSchema(tabella.nome);
  if (schema == nullptr) return tabella;
  for (Colonna& colonna : tabella.colonne) {
    const Colonna* sua = PerNome(schema->colonne, colonna.nome);
    if (sua != nullptr && colonna.predefinito.isEmpty()) colonna.predefinito = sua->predefinito;
  }
  for (Indice indice : schema->indici) {
    const bool possibile = std::all_of(
        indice.colonne.begin(), indice.colonne.end(),
        [&](const QString& colonna) { return PerNome(tabella.colonne, colonna) != nullptr; });
    if (!possibile || PerNome(tabella.indici, indice.nome) != nullptr) continue;
    // Nothing kept the old file's rows apart: they must not be refused now.
    indice.unico = false;
    tabella.indici.push_back(indice);
  }
  return tabella;
}

Contarighe::Contarighe(const LettoreJet& lettore, int giri, Progresso progresso)
    : progresso_(std::move(progresso)) {
  qint64 righe = 0;
  for (const torvi::Tabella& tabella : lettore.Tabelle())
    righe += lettore.QuanteRighe(tabella.nome);
  totale_ = static_cast<int>(std::min<qint64>(righe * giri, std::numeric_limits<int>::max()));
}

void Contarighe::Tabella(const QString& cosa) {
  cosa_ = cosa;
  Mostra();
}

void Contarighe::Riga() {
  if (++fatte_ % kRigheFraAvvisi == 0) Mostra();
}

void Contarighe::Mostra() const {
  if (progresso_) progresso_(cosa_, fatte_, std::max(fatte_, totale_));
}

void Versa(const LettoreJet& lettore, SQLite::Database& motore, Contarighe& conto) {
  SQLite::Transaction transazione(motore);
  for (const Tabella& tabella : lettore.Tabelle()) {
    conto.Tabella(QStringLiteral("Conversione di %1").arg(tabella.nome));
    VersaTabella(lettore, motore, Completata(tabella), conto);
  }
  transazione.commit();
}

QString Diversa(const LettoreJet& lettore, SQLite::Database& motore, Contarighe& conto) {
  // One lock for all, instead of one for each row that is looked up.
  const SQLite::Transaction transazione(motore);
  for (const Tabella& tabella : lettore.Tabelle()) {
    conto.Tabella(QStringLiteral("Verifica di %1").arg(tabella.nome));
    if (!StesseColonne(motore, tabella) || !StesseRighe(lettore, motore, tabella, conto) ||
        !StessoContatore(motore, tabella, lettore.UltimoContatore(tabella.nome))) {
      return tabella.nome;
    }
  }
  return {};
}

}  // namespace torvi
