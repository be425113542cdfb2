#include "testi/revisione.h"

#include <algorithm>

namespace torvi {

Revisione::Revisione(QString testo, Esame& esame) : esame_(esame), testo_(std::move(testo)) {
  Avanza();
}

QStringList Revisione::Proposte() const {
  return corrente_ ? esame_.Proposte(*corrente_) : QStringList();
}

void Revisione::Sostituisci(const QString& con) {
  Applica(*corrente_, con);
  Avanza();
}

void Revisione::SostituisciTutto(const QString& con) {
  sempre_.insert({corrente_->regola, corrente_->testo}, con);
  Sostituisci(con);
}

void Revisione::Ignora() {
  punto_ = {corrente_->inizio, corrente_->regola + 1};
  Avanza();
}

void Revisione::IgnoraTutto() {
  esame_.IgnoraTutto(*corrente_);
  Avanza();
}

void Revisione::AggiungiAlDizionario() {
  esame_.AggiungiAlDizionario(*corrente_);
  Avanza();
}

std::optional<Segnalazione> Revisione::Prossima() const {
  std::vector<Segnalazione> trovate = esame_.Segnala(testo_);
  const auto prossima = std::find_if(trovate.begin(), trovate.end(), [this](const auto& trovata) {
    return Punto(trovata.inizio, trovata.regola) >= punto_;
  });
  if (prossima == trovate.end()) return std::nullopt;
  return std::move(*prossima);
}

void Revisione::Avanza() {
  qsizetype ultima = -1;
  for (corrente_ = Prossima(); corrente_; corrente_ = Prossima()) {
    const auto sempre = sempre_.constFind({corrente_->regola, corrente_->testo});
    if (sempre == sempre_.cend()) return;
    const qsizetype inizio = corrente_->inizio;
    Applica(*corrente_, *sempre);
    // A replacement that is found again would be replaced for ever.
    if (inizio == ultima) punto_ = std::max(punto_, Punto(inizio + sempre->size(), 0));
    ultima = inizio;
  }
}

void Revisione::Applica(const Segnalazione& segnalazione, const QString& con) {
  if (con == segnalazione.testo) {
    punto_ = {segnalazione.inizio, segnalazione.regola + 1};
    return;
  }
  testo_.replace(segnalazione.inizio, segnalazione.testo.size(), con);
  modificato_ = true;
  punto_ = {segnalazione.inizio + (esame_.RiesaminaSostituzioni() ? 0 : con.size()), 0};
}

}  // namespace torvi
