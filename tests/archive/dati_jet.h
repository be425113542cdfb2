// The genuine Jet files, and what an independent reader sees in them.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <vector>

#include "archive/campo.h"
#include "comune/cartella_di_prova.h"

namespace torvi::prova {

inline QDir CartellaJet() { return QDir(FileGenuino({})); }

inline QStringList FileJet() { return CartellaJet().entryList({"*.mdb"}, QDir::Files); }

// "consegna.mdb" and ".json" or ".schema.json": what the file beside it tells.
inline QJsonObject Atteso(const QString& mdb, const char* genere) {
  const QString nome = mdb.chopped(4) + genere;
  return QJsonDocument::fromJson(Byte(CartellaJet().filePath(nome))).object();
}

// A value as one string, so that differences can be read: Null, text and numbers never look alike.
[[nodiscard]] inline QString Mostra(const QJsonValue& valore) {
  static const QRegularExpression data("^(\\d{4})-(\\d\\d)-(\\d\\d)T(\\d\\d:\\d\\d:\\d\\d)$");
  if (valore.isNull()) return "Null";
  if (valore.isBool()) return valore.toBool() ? "1" : "0";
  if (valore.isDouble()) return QString::number(valore.toDouble(), 'g', 15);
  const QString testo = valore.toString();
  const QRegularExpressionMatch trovata = data.match(testo);
  if (!trovata.hasMatch()) return QLatin1Char('"') + testo;
  const QString ora = trovata.captured(4);
  QString giorno = QLatin1Char('"') + trovata.captured(3) + QLatin1Char('/') + trovata.captured(2) +
                   QLatin1Char('/') + trovata.captured(1);
  return ora == "00:00:00" ? giorno : giorno + QLatin1Char(' ') + ora;
}

inline QString Mostra(const Campo& campo) {
  if (campo.Nullo()) return "Null";
  if (const auto* testo = std::get_if<QString>(&campo.Grezzo())) return QLatin1Char('"') + *testo;
  return campo.Testo();
}

// Rows as text, one string each: the values as Mostra gives them, between bars.
using Righe = std::vector<std::string>;

inline std::string Mostra(const std::vector<Campo>& riga) {
  QStringList valori;
  for (const Campo& campo : riga) valori += Mostra(campo);
  return valori.join('|').toStdString();
}

// Rows as the independent reader tells them, by the names of the columns.
[[nodiscard]] inline Righe RigheAttese(const QStringList& colonne, const QJsonArray& righe) {
  Righe attese;
  for (const auto riga : righe) {
    QStringList valori;
    for (const QString& colonna : colonne) valori += Mostra(riga.toObject()[colonna]);
    attese.push_back(valori.join('|').toStdString());
  }
  return attese;
}

}  // namespace torvi::prova
