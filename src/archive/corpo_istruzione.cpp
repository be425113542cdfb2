#include "archive/corpo_istruzione.h"

namespace torvi {

CorpoIstruzione::CorpoIstruzione(std::shared_ptr<Connessione> connessione, QString istruzione,
                                 QList<Campo> parametri)
    : Corpo(std::move(connessione)),
      istruzione_(std::move(istruzione)),
      parametri_(std::move(parametri)) {
  Esegui();
  vuota_ = !aperta_;
}

void CorpoIstruzione::Esegui() {
  aperta_.Restituisci();
  aperta_ = Motore().Prepara(istruzione_);
  tabella_ = aperta_->tabella;
  colonne_ = aperta_->colonne;
  Motore().LegaTutti(aperta_, parametri_);
  posizione_ = -1;
  Avanza();
}

void CorpoIstruzione::Avanza() {
  ++posizione_;
  // A finished statement would still hold its lock on the file.
  if (!Motore().Passo(aperta_)) aperta_.Restituisci();
}

CorpoIstruzione::Riga CorpoIstruzione::LeggiRiga() const {
  Riga riga;
  if (!tabella_.isEmpty()) riga.numero = aperta_->motore->Leggi(0).Intero();
  const int inizio = aperta_->Spostamento();
  for (std::size_t i = 0; i < colonne_->Quante(); ++i) {
    riga.valori.push_back(aperta_->motore->Leggi(inizio + static_cast<int>(i)));
  }
  return riga;
}

void CorpoIstruzione::TieniTutte() {
  if (tenute_.has_value()) return;
  const qint64 dove = posizione_;
  std::vector<Riga> righe;
  for (Esegui(); aperta_; Avanza()) righe.push_back(LeggiRiga());
  tenute_ = std::move(righe);
  posizione_ = dove;
}

bool CorpoIstruzione::Eof() {
  if (tenute_.has_value()) return posizione_ >= static_cast<qint64>(tenute_->size());
  return !aperta_;
}

bool CorpoIstruzione::Bof() { return vuota_ || posizione_ < 0; }

void CorpoIstruzione::RichiediRighe() const {
  if (vuota_) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
}

void CorpoIstruzione::MoveFirst() {
  RichiediRighe();
  if (tenute_.has_value()) {
    posizione_ = 0;
  } else if (posizione_ != 0) {
    Esegui();
  }
}

void CorpoIstruzione::MoveLast() {
  RichiediRighe();
  TieniTutte();
  posizione_ = static_cast<qint64>(tenute_->size()) - 1;
}

void CorpoIstruzione::MoveNext() {
  if (Eof()) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  if (tenute_.has_value()) {
    ++posizione_;
  } else {
    Avanza();
  }
}

void CorpoIstruzione::MovePrevious() {
  if (Bof()) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  TieniTutte();
  --posizione_;
}

CorpoIstruzione::Riga& CorpoIstruzione::Corrente() {
  if (Eof() || Bof() || tenute_->at(posizione_).cancellata) {
    throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  }
  return tenute_->at(posizione_);
}

Campo CorpoIstruzione::Valore(int colonna) {
  if (tenute_.has_value()) return Corrente().valori.at(colonna);
  if (!aperta_) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
  return aperta_->motore->Leggi(aperta_->Spostamento() + colonna);
}

torvi::Riga CorpoIstruzione::Copia() {
  if (tenute_.has_value() || !aperta_) return Corpo::Copia();
  std::vector<Campo> valori;
  valori.reserve(colonne_->Quante());
  const int inizio = aperta_->Spostamento();
  for (std::size_t i = 0; i < colonne_->Quante(); ++i) {
    valori.push_back(aperta_->motore->Leggi(inizio + static_cast<int>(i)));
    if (valori.back().Nullo()) valori.back() = Campo::NullDi(colonne_->Testo(i));
  }
  return {colonne_, std::move(valori)};
}

const InfoTabella& CorpoIstruzione::TabellaDaScrivere() {
  if (tabella_.isEmpty()) throw ErroreEsecuzione(Errore::SolaLettura, istruzione_);
  return Motore().Tabella(tabella_);
}

void CorpoIstruzione::RigaCambiata() {
  Riga& riga = Corrente();
  const Connessione::Prestito rilettura = Motore().PreparaMotore(
      "SELECT * FROM [" + TabellaDaScrivere().nome.toStdString() + "] WHERE rowid=?");
  Motore().LegaTutti(rilettura, {Campo(riga.numero)});
  if (!Motore().Passo(rilettura)) return;
  for (std::size_t i = 0; i < colonne_->Quante(); ++i) {
    const int colonna = TabellaDaScrivere().colonne.Posizione((*colonne_)[i]);
    if (colonna >= 0) riga.valori[i] = rilettura->motore->Leggi(colonna);
  }
}

void CorpoIstruzione::RigaCancellata() { Corrente().cancellata = true; }

qint64 CorpoIstruzione::Bookmark() {
  if (tabella_.isEmpty()) throw ErroreEsecuzione(Errore::SolaLettura, istruzione_);
  TieniTutte();
  return Corrente().numero;
}

void CorpoIstruzione::Bookmark(qint64 riga) {
  if (tabella_.isEmpty()) throw ErroreEsecuzione(Errore::SolaLettura, istruzione_);
  TieniTutte();
  for (std::size_t i = 0; i < tenute_->size(); ++i) {
    if (tenute_->at(i).numero == riga) {
      posizione_ = static_cast<qint64>(i);
      return;
    }
  }
  throw ErroreEsecuzione(Errore::NessunRecordCorrente);
}

void CorpoIstruzione::Index(std::string_view /*nome*/) {
  throw ErroreEsecuzione(Errore::OperazioneNonAmmessa, istruzione_);
}

void CorpoIstruzione::Seek(const Campo& /*chiave*/) {
  throw ErroreEsecuzione(Errore::OperazioneNonAmmessa, istruzione_);
}

}  // namespace torvi
