// A text under correction: one finding of a check after the other is laid before the operator, who
// replaces or ignores it. What was replaced stays so whenever the operator stops.
#pragma once

#include <QMap>
#include <optional>
#include <utility>

#include "testi/esame.h"

namespace torvi {

class Revisione {
 public:
  // The check must outlive this.
  Revisione(QString testo, Esame& esame);

  [[nodiscard]] const QString& Testo() const { return testo_; }
  // The finding in hand; none at the end of the text.
  [[nodiscard]] const std::optional<Segnalazione>& Corrente() const { return corrente_; }
  [[nodiscard]] QStringList Proposte() const;
  [[nodiscard]] bool HaDizionario() const { return esame_.HaDizionario(); }
  [[nodiscard]] bool Modificato() const { return modificato_; }

  // Each deals with the finding in hand, which must be there, and goes on to the next one.
  void Sostituisci(const QString& con);
  // Here and wherever the same is found further on.
  void SostituisciTutto(const QString& con);
  void Ignora();
  void IgnoraTutto();
  // Error 75 where the dictionary cannot be written; the finding then stays in hand.
  void AggiungiAlDizionario();

 private:
  using Punto = std::pair<qsizetype, int>;  // place in the text, rule
  using Chiave = std::pair<int, QString>;   // rule, what was found

  void Avanza();
  [[nodiscard]] std::optional<Segnalazione> Prossima() const;
  void Applica(const Segnalazione& segnalazione, const QString& con);

  Esame& esame_;
  QString testo_;
  std::optional<Segnalazione> corrente_;
  Punto punto_ = {0, 0};  // nothing before it is examined again
  QMap<Chiave, QString> sempre_;
  bool modificato_ = false;
};

}  // namespace torvi
