#include "archive/connessione.h"

#include <sqlite3.h>

#include <QFileInfo>
#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>

#include "archive/file_nuovo.h"
#include "archive/scrittura_file.h"
#include "archive/traduttore.h"

namespace torvi {
namespace {

// Texts with their values inside come once each; beyond so many the shelf starts anew.
constexpr std::size_t kTestiTenuti = 512;

char Minuscolo(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string InMinuscolo(std::string_view testo) {
  std::string minuscolo(testo);
  std::transform(minuscolo.begin(), minuscolo.end(), minuscolo.begin(), Minuscolo);
  return minuscolo;
}

struct VoceGuasto {
  int codice;
  Errore numero;
};

constexpr std::array kGuasti = {
    VoceGuasto{SQLITE_CONSTRAINT, Errore::ChiaveDuplicata},
    VoceGuasto{SQLITE_READONLY, Errore::SolaLettura},
    VoceGuasto{SQLITE_BUSY, Errore::RecordBloccato},
    VoceGuasto{SQLITE_LOCKED, Errore::RecordBloccato},
    VoceGuasto{SQLITE_FULL, Errore::DiscoPieno},
    VoceGuasto{SQLITE_IOERR, Errore::ErroreDispositivo},
    VoceGuasto{SQLITE_NOTADB, Errore::FormatoNonRiconosciuto},
    VoceGuasto{SQLITE_CORRUPT, Errore::FormatoNonRiconosciuto},
    VoceGuasto{SQLITE_CANTOPEN, Errore::PermessoNegato},
    VoceGuasto{SQLITE_PERM, Errore::PermessoNegato},
    VoceGuasto{SQLITE_AUTH, Errore::PermessoNegato},
    VoceGuasto{SQLITE_MISMATCH, Errore::ConversioneTipo},
};

Errore NumeroDi(const SQLite::Exception& guasto) {
  const std::string_view testo = guasto.what();
  if (testo.find("no such column") != std::string_view::npos) return Errore::ParametriInsufficienti;
  if (testo.find("no such table") != std::string_view::npos) return Errore::TabellaNonTrovata;
  for (const VoceGuasto& voce : kGuasti) {
    if (voce.codice == (guasto.getErrorCode() & 0xff)) return voce.numero;
  }
  return Errore::SintassiErrata;
}

// The engine does not say why it could not make its journal: another new file beside tells.
bool SenzaPosto(const QString& percorso) {
  if (!QFileInfo(percorso).isFile()) return false;
  try {
    const FileNuovo prova(percorso);
    return false;
  } catch (const ErroreEsecuzione& errore) {
    return errore.E(Errore::DiscoPieno);
  }
}

}  // namespace

ErroreEsecuzione DaMotore(const SQLite::Exception& guasto, const QString& dettaglio) {
  // The system's reason, which the engine only tells as a failure of the file.
  const bool pieno = ErroreDiScrittura(errno) == Errore::DiscoPieno;
  const int codice = guasto.getErrorCode() & 0xff;
  if ((codice == SQLITE_IOERR && pieno) || (codice == SQLITE_CANTOPEN && SenzaPosto(dettaglio))) {
    return ErroreEsecuzione(Errore::DiscoPieno, dettaglio);
  }
  if (guasto.getExtendedErrorCode() == SQLITE_READONLY_DBMOVED) {
    return ErroreEsecuzione::ConDescrizione(
        Errore::DatabaseNonTrovato,
        QStringLiteral("Il file %1 è stato tolto o sostituito mentre era aperto: non vi è stato "
                       "scritto niente. Chiudere l'archivio e riaprirlo.")
            .arg(dettaglio));
  }
  if (codice != SQLITE_ERROR) return ErroreEsecuzione(NumeroDi(guasto), dettaglio);
  // Only of a statement does the engine know more than the number says, in words of its own; where
  // these name the column with its table there is nothing to add.
  const QString detto = QString::fromUtf8(guasto.what());
  const QString colonna = detto.section(QStringLiteral("no such column: "), 1);
  if (colonna.contains(u'.')) return ErroreEsecuzione(NumeroDi(guasto), colonna);
  return ErroreEsecuzione(NumeroDi(guasto),
                          colonna.isEmpty() ? QStringLiteral("%1 (%2)").arg(dettaglio, detto)
                                            : QStringLiteral("%1 (%2)").arg(colonna, dettaglio));
}

Connessione::Connessione(QString percorso, std::unique_ptr<SQLite::Database> motore)
    : percorso_(std::move(percorso)), motore_(std::move(motore)) {}

Connessione::~Connessione() { Chiudi(); }

void Connessione::RichiediAperta() const {
  if (Chiusa()) throw ErroreEsecuzione(Errore::OggettoChiuso, percorso_);
}

Connessione::Prestito::Prestito(std::shared_ptr<Connessione> di, Scaffale& scaffale,
                                std::unique_ptr<Preparata> preparata)
    : di_(std::move(di)), scaffale_(&scaffale), preparata_(std::move(preparata)) {
  di_->prestate_.push_back(preparata_.get());
  ++scaffale_->prestate;
}

Connessione::Prestito& Connessione::Prestito::operator=(Prestito&& altro) noexcept {
  if (this == &altro) return *this;
  Restituisci();
  di_ = std::move(altro.di_);
  scaffale_ = altro.scaffale_;
  preparata_ = std::move(altro.preparata_);
  return *this;
}

void Connessione::Prestito::Restituisci() noexcept {
  if (preparata_ == nullptr) return;
  std::erase(di_->prestate_, preparata_.get());
  // Without its statement it comes from a connection that was closed meanwhile.
  if (preparata_->motore != nullptr) {
    preparata_->motore->Azzera();
    --scaffale_->prestate;
    scaffale_->libere.push_back(std::move(preparata_));
  }
  preparata_.reset();
  di_.reset();
}

Connessione::Prestito Connessione::Presta(Scaffale& scaffale, std::unique_ptr<Preparata> nuova) {
  if (nuova == nullptr) {
    nuova = std::move(scaffale.libere.back());
    scaffale.libere.pop_back();
  }
  return {shared_from_this(), scaffale, std::move(nuova)};
}

std::unique_ptr<Preparata> Connessione::Nuova(const std::string& sql, const QString& dettaglio) {
  auto nuova = std::make_unique<Preparata>();
  try {
    nuova->motore = std::make_unique<IstruzioneMotore>(*motore_, sql);
  } catch (const SQLite::Exception& guasto) {
    throw DaMotore(guasto, dettaglio);
  }
  return nuova;
}

Connessione::Scaffale& Connessione::ScaffaleDi(const QString& istruzione) {
  const auto indirizzo = std::bit_cast<std::uintptr_t>(istruzione.constData());
  auto*& recente = recenti_[(indirizzo >> 4) % recenti_.size()];
  if (recente != nullptr && recente->first == istruzione) return recente->second;
  if (dialetto_.size() >= kTestiTenuti) {
    std::erase_if(dialetto_, [](const auto& voce) { return voce.second.prestate == 0; });
    recenti_.fill(nullptr);
  }
  recente = &*dialetto_.try_emplace(istruzione).first;
  return recente->second;
}

Connessione::Prestito Connessione::Prepara(const QString& istruzione) {
  RichiediAperta();
  Scaffale& scaffale = ScaffaleDi(istruzione);
  if (!scaffale.libere.empty()) return Presta(scaffale, nullptr);
  const Traduzione traduzione = Traduci(istruzione);
  auto nuova = Nuova(traduzione.sql.toStdString(), istruzione);
  nuova->tabella = traduzione.tabella;
  auto colonne = std::make_shared<NomiColonne>();
  colonne->Di(traduzione.tabelle);
  for (int i = nuova->Spostamento(); i < nuova->motore->NumeroColonne(); ++i) {
    std::string_view nome = nuova->motore->NomeColonna(i);
    if (nome.starts_with(kPrefissoAlias)) nome.remove_prefix(1);
    colonne->Aggiungi(nome);
  }
  nuova->colonne = std::move(colonne);
  return Presta(scaffale, std::move(nuova));
}

Connessione::Prestito Connessione::PreparaMotore(const std::string& sql) {
  RichiediAperta();
  Scaffale& scaffale = interne_[sql];
  return Presta(scaffale, scaffale.libere.empty() ? Nuova(sql, percorso_) : nullptr);
}

void Connessione::LegaTutti(const Prestito& prestito, const QList<Campo>& parametri) const {
  RichiediAperta();
  try {
    for (qsizetype i = 0; i < parametri.size(); ++i) {
      prestito->motore->Lega(static_cast<int>(i) + 1, parametri.at(i));
    }
  } catch (const SQLite::Exception& guasto) {
    throw DaMotore(guasto, percorso_);
  }
}

bool Connessione::Passo(const Prestito& prestito) const {
  RichiediAperta();
  try {
    return prestito->motore->Passo();
  } catch (const SQLite::Exception& guasto) {
    throw DaMotore(guasto, percorso_);
  }
}

qint64 Connessione::Esegui(const Prestito& prestito, const QList<Campo>& parametri) {
  LegaTutti(prestito, parametri);
  while (Passo(prestito)) {
  }
  return sqlite3_changes64(motore_->getHandle());
}

QStringList Connessione::Tabelle() {
  QStringList nomi;
  const Prestito elenco = PreparaMotore(
      "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' "
      "ESCAPE '\\' ORDER BY rowid");
  while (Passo(elenco)) nomi += elenco->motore->Leggi(0).Testo();
  return nomi;
}

const InfoTabella& Connessione::Tabella(const QString& nome) {
  RichiediAperta();
  QString nudo = nome.trimmed();
  if (nudo.startsWith(u'[') && nudo.endsWith(u']')) nudo = nudo.mid(1, nudo.size() - 2);
  const std::string chiave = InMinuscolo(nudo.toStdString());
  auto trovata = tabelle_.find(chiave);
  if (trovata == tabelle_.end()) trovata = tabelle_.emplace(chiave, LeggiTabella(nudo)).first;
  return trovata->second;
}

InfoTabella Connessione::LeggiTabella(const QString& nome) {
  InfoTabella info;
  const Prestito tabella = PreparaMotore(
      "SELECT m.name, c.name, c.type, c.pk FROM sqlite_master m JOIN pragma_table_info(m.name) c "
      "WHERE m.type = 'table' AND m.name = ? COLLATE NOCASE ORDER BY c.cid");
  LegaTutti(tabella, {nome});
  while (Passo(tabella)) {
    info.nome = tabella->motore->Leggi(0).Testo();
    info.colonne.Di({info.nome});
    const std::string colonna = tabella->motore->Leggi(1).Testo().toStdString();
    info.colonne.Aggiungi(colonna);
    const QString tipo = tabella->motore->Leggi(2).Testo().toUpper();
    info.numeriche.push_back(tipo == QLatin1String("INTEGER") || tipo == QLatin1String("BOOLEAN") ||
                             tipo == QLatin1String("REAL"));
    if (tabella->motore->Leggi(3).Logico()) info.numeroRiga = colonna;
  }
  if (info.nome.isEmpty()) throw ErroreEsecuzione(Errore::TabellaNonTrovata, nome);
  if (!info.numeroRiga.empty()) info.indici.emplace("primarykey", info.numeroRiga);
  // An index is stored as "table.index" (schema.h).
  const Prestito indici = PreparaMotore(
      "SELECT substr(m.name, length(m.tbl_name) + 2), c.name FROM sqlite_master m "
      "JOIN pragma_index_info(m.name) c WHERE m.type = 'index' AND c.seqno = 0 AND m.tbl_name = ?");
  LegaTutti(indici, {info.nome});
  while (Passo(indici)) {
    info.indici.insert_or_assign(InMinuscolo(indici->motore->Leggi(0).Testo().toStdString()),
                                 indici->motore->Leggi(1).Testo().toStdString());
  }
  return info;
}

void Connessione::IniziaUnita() {
  RichiediAperta();
  // To the engine a unit that only reads is no fault; here it is always meant to write.
  if (sqlite3_db_readonly(motore_->getHandle(), "main") == 1) {
    throw ErroreEsecuzione(Errore::SolaLettura, percorso_);
  }
  if (unita_ == 0) Esegui(PreparaMotore("BEGIN IMMEDIATE"), {});
  ++unita_;
}

void Connessione::ConcludiUnita() {
  if (unita_ == 0 || --unita_ > 0 || Chiusa()) return;
  // On a full disk the engine may have taken the whole unit back by itself.
  if (sqlite3_get_autocommit(motore_->getHandle()) != 0) return;
  try {
    Esegui(PreparaMotore("COMMIT"), {});
  } catch (const ErroreEsecuzione&) {
    motore_->tryExec("ROLLBACK");
    throw;
  }
}

void Connessione::Chiudi() {
  recenti_.fill(nullptr);
  dialetto_.clear();
  interne_.clear();
  for (Preparata* const prestata : prestate_) prestata->motore.reset();
  motore_.reset();
}

}  // namespace torvi
