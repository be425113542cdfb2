#include "archive/travaso_jet.h"

#include <SQLiteCpp/Transaction.h>

#include <algorithm>
#include <limits>

#include "archive/connessione.h"

namespace torvi {
namespace {

constexpr int kRigheFraAvvisi = 200;

bool Uguali(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

template <typename Elenco>
auto Trova(Elenco& elenco, const QString& nome) {
  const auto trovato = std::find_if(elenco.begin(), elenco.end(),
                                    [&](const auto& uno) { return Uguali(uno.nome, nome); });
  return trovato == elenco.end() ? nullptr : &*trovato;
}

const Tabella* NelloSchema(const QString& nome) {
  const Tabella* tabella = Trova(SchemaArchivio(), nome);
  return tabella != nullptr ? tabella : Trova(SchemaCatalogo(), nome);
}

int Contatore(const Tabella& tabella) {
  const auto colonna =
      std::find_if(tabella.colonne.begin(), tabella.colonne.end(),
                   [](const Colonna& una) { return una.tipo == TipoColonna::Contatore; });
  return colonna == tabella.colonne.end() ? -1
                                          : static_cast<int>(colonna - tabella.colonne.begin());
}

std::string Nome(const QString& nome) { return '[' + nome.toStdString() + ']'; }

void LegaRiga(SQLite::Statement& istruzione, const std::vector<Campo>& riga) {
  for (std::size_t i = 0; i < riga.size(); ++i) Lega(istruzione, static_cast<int>(i) + 1, riga[i]);
}

SQLite::Statement Inserimento(SQLite::Database& motore, const Tabella& tabella) {
  std::string posti = "?";
  for (std::size_t i = 1; i < tabella.colonne.size(); ++i) posti += ",?";
  return {motore, "INSERT INTO " + Nome(tabella.nome) + " VALUES (" + posti + ")"};
}

// A number that the counter gave to a row deleted since is not given again.
void PortaContatore(SQLite::Database& motore, const Tabella& tabella, qint64 ultimo) {
  if (Contatore(tabella) < 0) return;
  SQLite::Statement massimo(motore, "SELECT max(?, ifnull(max(" +
                                        Nome(tabella.colonne[Contatore(tabella)].nome) +
                                        "), 0)) FROM " + Nome(tabella.nome));
  massimo.bind(1, static_cast<int64_t>(ultimo));
  massimo.executeStep();
  SQLite::Statement togli(motore, "DELETE FROM sqlite_sequence WHERE name = ?");
  togli.bind(1, tabella.nome.toStdString());
  togli.exec();
  SQLite::Statement metti(motore, "INSERT INTO sqlite_sequence (name, seq) VALUES (?, ?)");
  metti.bind(1, tabella.nome.toStdString());
  metti.bind(2, massimo.getColumn(0).getInt64());
  metti.exec();
}

void VersaTabella(const LettoreJet& lettore, SQLite::Database& motore, const Tabella& tabella,
                  Contarighe& conto) {
  const QStringList istruzioni = IstruzioniTabella(tabella);
  motore.exec(istruzioni.front().toStdString());
  SQLite::Statement inserimento = Inserimento(motore, tabella);
  lettore.LeggiRighe(tabella.nome, [&](const std::vector<Campo>& riga) {
    LegaRiga(inserimento, riga);
    inserimento.exec();
    inserimento.reset();
    conto.Riga();
  });
  // An index over rows that are there is made in one go.
  for (const QString& istruzione : istruzioni.mid(1)) motore.exec(istruzione.toStdString());
  PortaContatore(motore, tabella, lettore.UltimoContatore(tabella.nome));
}

bool RigaUguale(const SQLite::Statement& istruzione, const std::vector<Campo>& riga) {
  for (std::size_t i = 0; i < riga.size(); ++i) {
    if (Leggi(istruzione, static_cast<int>(i)) != riga[i]) return false;
  }
  return true;
}

bool StesseColonne(SQLite::Database& motore, const Tabella& tabella) {
  const SQLite::Statement righe(motore, "SELECT * FROM " + Nome(tabella.nome));
  if (righe.getColumnCount() != static_cast<int>(tabella.colonne.size())) return false;
  for (int i = 0; i < righe.getColumnCount(); ++i) {
    if (tabella.colonne[i].nome != QString::fromUtf8(righe.getColumnName(i))) return false;
  }
  return true;
}

bool StessoContatore(SQLite::Database& motore, const Tabella& tabella, qint64 ultimo) {
  if (Contatore(tabella) < 0) return true;
  SQLite::Statement contatore(motore, "SELECT seq FROM sqlite_sequence WHERE name = ?");
  contatore.bind(1, tabella.nome.toStdString());
  return contatore.executeStep() && contatore.getColumn(0).getInt64() >= ultimo;
}

// Rows stand in the order of the file, or under the number that their counter gave them.
bool StesseRighe(const LettoreJet& lettore, SQLite::Database& motore, const Tabella& tabella,
                 Contarighe& conto) {
  const int contatore = Contatore(tabella);
  std::string sql = "SELECT * FROM " + Nome(tabella.nome);
  sql +=
      contatore < 0 ? " NOT INDEXED" : " WHERE " + Nome(tabella.colonne[contatore].nome) + " = ?";
  SQLite::Statement righe(motore, sql);
  bool uguali = true;
  qint64 lette = 0;
  lettore.LeggiRighe(tabella.nome, [&](const std::vector<Campo>& riga) {
    if (contatore >= 0) {
      righe.reset();
      Lega(righe, 1, riga[contatore]);
    }
    uguali = uguali && righe.executeStep() && RigaUguale(righe, riga);
    ++lette;
    conto.Riga();
  });
  SQLite::Statement quante(motore, "SELECT count(*) FROM " + Nome(tabella.nome));
  return uguali && quante.executeStep() && quante.getColumn(0).getInt64() == lette;
}

}  // namespace

Tabella Completata(Tabella tabella) {
  const Tabella* schema = NelloSchema(tabella.nome);
  if (schema == nullptr) return tabella;
  for (Colonna& colonna : tabella.colonne) {
    const Colonna* sua = Trova(schema->colonne, colonna.nome);
    if (sua != nullptr && colonna.predefinito.isEmpty()) colonna.predefinito = sua->predefinito;
  }
  for (Indice indice : schema->indici) {
    const bool possibile = std::all_of(
        indice.colonne.begin(), indice.colonne.end(),
        [&](const QString& colonna) { return Trova(tabella.colonne, colonna) != nullptr; });
    if (!possibile || Trova(tabella.indici, indice.nome) != nullptr) continue;
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
