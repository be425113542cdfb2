// The tables of citations in tests/dati: pairs of lines, what `torvi componi` is given and what it
// answers without what is empty, false or usual.
#pragma once

#include <QJsonObject>
#include <QList>

#include "archive/database.h"

namespace torvi {

struct Citazione {
  int riga = 0;  // of the file
  QJsonObject richiesta;
  QJsonObject attesa;
};
// A line that is no JSON fails the test.
[[nodiscard]] QList<Citazione> LeggiCitazioni(const QString& nome);
// An answer as the tables have it.
[[nodiscard]] QJsonObject Ridotta(const QJsonObject& risposta);
// On one line, the names in the order of the alphabet.
[[nodiscard]] std::string Mostra(const QJsonObject& oggetto);
// The treaties and acts that the tables cite.
void AggiungiAttiCitati(const Database& archivio);

}  // namespace torvi
