#include "archive/campo.h"

#include <cmath>
#include <limits>

#include "archive/errore.h"

namespace torvi {

bool Campo::Presente() const {
  const auto* testo = std::get_if<QString>(&valore_);
  return testo != nullptr ? !testo->isEmpty() : !Nullo();
}

QString Campo::Testo() const {
  RichiediValore();
  if (const auto* testo = std::get_if<QString>(&valore_)) return *testo;
  if (const auto* reale = std::get_if<double>(&valore_)) return QString::number(*reale, 'g', 15);
  return QString::number(std::get<qint64>(valore_));
}

QString Campo::TestoOVuoto() const { return Nullo() ? QString() : Testo(); }

void Campo::RichiediValore() const {
  const auto* assente = std::get_if<Assente>(&valore_);
  if (assente != nullptr) throw ErroreEsecuzione(Errore::NullNonValido, assente->colonna);
}

qint64 Campo::Intero() const {
  RichiediValore();
  if (const auto* intero = std::get_if<qint64>(&valore_)) return *intero;
  double reale = 0;
  if (const auto* valore = std::get_if<double>(&valore_)) {
    reale = *valore;
  } else {
    bool valido = false;
    reale = std::get<QString>(valore_).trimmed().toDouble(&valido);
    if (!valido) throw ErroreEsecuzione(Errore::TipoNonCorrispondente);
  }
  // Halves go to the even number, as in every conversion to an integer of the system.
  return static_cast<qint64>(std::nearbyint(reale));
}

qint16 Campo::Intero16() const { return torvi::Intero16(Intero()); }

bool Campo::Logico() const { return Intero() != 0; }

qint16 Intero16(qint64 valore) {
  using Limiti = std::numeric_limits<qint16>;
  if (valore < Limiti::min() || valore > Limiti::max()) throw ErroreEsecuzione(Errore::Overflow);
  return static_cast<qint16>(valore);
}

}  // namespace torvi
