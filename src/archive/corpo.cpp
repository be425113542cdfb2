#include "archive/corpo.h"

#include <algorithm>

namespace torvi {
namespace {

// The engine would keep text in a numeric column as it is; the system's own refuses it.
void RichiediTipo(const InfoTabella& tabella, int colonna, const Campo& valore) {
  const auto* testo = std::get_if<QString>(&valore.Grezzo());
  if (testo == nullptr || !tabella.numeriche.at(colonna)) return;
  bool numero = false;
  (void)testo->trimmed().toDouble(&numero);
  if (!numero) {
    throw ErroreEsecuzione(Errore::ConversioneTipo,
                           QString::fromStdString(tabella.colonne[colonna]));
  }
}

// Somebody else has deleted the row meanwhile.
void RichiediScritta(qint64 righe, const InfoTabella& tabella) {
  if (righe > 0) return;
  throw ErroreEsecuzione(Errore::NessunRecordCorrente,
                         QStringLiteral("la riga di %1 è stata cancellata").arg(tabella.nome));
}

QList<Campo> Valori(const std::vector<std::pair<std::string, Campo>>& preparati) {
  QList<Campo> valori;
  for (const auto& [nome, valore] : preparati) valori += valore;
  return valori;
}

}  // namespace

Recordset::Corpo::Corpo(std::shared_ptr<Connessione> connessione)
    : connessione_(std::move(connessione)) {}

int Recordset::Corpo::Colonna(std::string_view nome) const { return Colonne().Richiedi(nome); }

Campo Recordset::Corpo::Fields(int colonna) {
  for (const auto& [assegnato, valore] : preparati_) {
    if (assegnato == Colonne()[colonna]) return valore;
  }
  if (preparazione_ == Preparazione::Nuova) return {};
  Campo valore = Valore(colonna);
  if (!valore.Nullo()) return valore;
  return Campo::NullDi(Colonne().Testo(static_cast<std::size_t>(colonna)));
}

Riga Recordset::Corpo::Copia() {
  std::vector<Campo> valori;
  valori.reserve(Colonne().Quante());
  for (int i = 0; i < static_cast<int>(Colonne().Quante()); ++i) valori.push_back(Fields(i));
  return {std::make_shared<NomiColonne>(Colonne()), std::move(valori)};
}

bool Recordset::Corpo::HaCampo(std::string_view nome) const {
  return Colonne().Posizione(nome) >= 0;
}

void Recordset::Corpo::Assegna(std::string_view nome, const Campo& valore) {
  const InfoTabella& tabella = TabellaDaScrivere();
  const int colonna = tabella.colonne.Richiedi(nome);
  if (preparazione_ == Preparazione::Nessuna) {
    throw ErroreEsecuzione(Errore::AggiornamentoSenzaEdit);
  }
  RichiediTipo(tabella, colonna, valore);
  const std::string& spelta = tabella.colonne[colonna];
  const auto gia = std::find_if(preparati_.begin(), preparati_.end(),
                                [&](const auto& coppia) { return coppia.first == spelta; });
  if (gia == preparati_.end()) {
    preparati_.emplace_back(spelta, valore);
  } else {
    gia->second = valore;
  }
}

void Recordset::Corpo::AddNew() {
  (void)TabellaDaScrivere();
  preparati_.clear();
  preparazione_ = Preparazione::Nuova;
}

void Recordset::Corpo::Edit() {
  (void)TabellaDaScrivere();
  PrimaDiScrivere();
  (void)Bookmark();  // error 3021 without a current row
  preparati_.clear();
  preparazione_ = Preparazione::Modifica;
}

void Recordset::Corpo::Update() {
  const InfoTabella& tabella = TabellaDaScrivere();
  if (preparazione_ == Preparazione::Nessuna) {
    throw ErroreEsecuzione(Errore::AggiornamentoSenzaEdit);
  }
  if (preparazione_ == Preparazione::Nuova) {
    Inserisci(tabella);
  } else {
    Aggiorna(tabella);
  }
  const bool modifica = preparazione_ == Preparazione::Modifica;
  preparazione_ = Preparazione::Nessuna;
  preparati_.clear();
  if (modifica) RigaCambiata();
}

void Recordset::Corpo::Inserisci(const InfoTabella& tabella) {
  std::string nomi;
  std::string segni;
  for (const auto& [nome, valore] : preparati_) {
    nomi += (nomi.empty() ? "[" : ",[") + nome + "]";
    segni += segni.empty() ? "?" : ",?";
  }
  const std::string colonne =
      preparati_.empty() ? " DEFAULT VALUES" : "(" + nomi + ") VALUES(" + segni + ")";
  Motore().Esegui(
      Motore().PreparaMotore("INSERT INTO [" + tabella.nome.toStdString() + "]" + colonne),
      Valori(preparati_));
  ultimaModificata_ = Motore().UltimaRiga();
}

void Recordset::Corpo::Aggiorna(const InfoTabella& tabella) {
  ultimaModificata_ = Bookmark();
  if (preparati_.empty()) return;
  std::string assegnazioni;
  for (const auto& [nome, valore] : preparati_) {
    assegnazioni += (assegnazioni.empty() ? "[" : ",[") + nome + "]=?";
  }
  QList<Campo> valori = Valori(preparati_);
  valori += Campo(ultimaModificata_);
  RichiediScritta(Motore().Esegui(
                      Motore().PreparaMotore("UPDATE [" + tabella.nome.toStdString() + "] SET " +
                                             assegnazioni + " WHERE rowid=?"),
                      valori),
                  tabella);
}

void Recordset::Corpo::Delete() {
  const InfoTabella& tabella = TabellaDaScrivere();
  PrimaDiScrivere();
  const qint64 riga = Bookmark();
  RichiediScritta(Motore().Esegui(Motore().PreparaMotore("DELETE FROM [" +
                                                         tabella.nome.toStdString() +
                                                         "] WHERE rowid=?"),
                                  {Campo(riga)}),
                  tabella);
  RigaCancellata();
}

}  // namespace torvi
