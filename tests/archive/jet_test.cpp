#include "archive/jet.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <random>

#include "archive/dati_jet.h"
#include "archive/errore.h"

namespace torvi {
namespace {

using namespace prova;

using Righe = QList<QStringList>;

Righe Leggi(const LettoreJet& lettore, const QString& tabella) {
  Righe righe;
  lettore.LeggiRighe(tabella,
                     [&](const std::vector<Campo>& riga) { righe += Mostra(riga); });
  return righe;
}

QMap<QString, Righe> LeggiTutto(const QString& percorso) {
  const LettoreJet lettore(percorso);
  QMap<QString, Righe> tutto;
  for (const Tabella& tabella : lettore.Tabelle()) {
    tutto[tabella.nome] = Leggi(lettore, tabella.nome);
  }
  return tutto;
}

// "TEXT 255 default 0", as both sides tell a column.
QString Descrivi(const QJsonObject& colonna) {
  QString testo = colonna[QLatin1String("name")].toString() + QLatin1Char(' ') +
                  colonna[QLatin1String("type")].toString();
  if (colonna.contains(QLatin1String("chars"))) {
    testo += QLatin1Char(' ') + QString::number(colonna[QLatin1String("chars")].toInt());
  }
  if (colonna[QLatin1String("counter")].toBool()) testo += QLatin1String(" counter");
  return testo + QLatin1Char(' ') + colonna[QLatin1String("default")].toString();
}

QString Descrivi(const Colonna& colonna) {
  static const QMap<TipoColonna, QString> tipi = {
      {TipoColonna::Contatore, QStringLiteral("LONG counter")},
      {TipoColonna::Intero, QStringLiteral("LONG")},
      {TipoColonna::Testo, QStringLiteral("TEXT %1").arg(colonna.larghezza)},
      {TipoColonna::Memo, QStringLiteral("MEMO")},
      {TipoColonna::Logico, QStringLiteral("BOOLEAN")},
      {TipoColonna::Data, QStringLiteral("SHORT_DATE_TIME")}};
  return colonna.nome + QLatin1Char(' ') + tipi[colonna.tipo] + QLatin1Char(' ') +
         colonna.predefinito;
}

QString Descrivi(const QString& nome, const QStringList& colonne, bool unico) {
  return nome + QLatin1Char('(') + colonne.join(QLatin1Char(',')) + QLatin1Char(')') +
         (unico ? QStringLiteral(" unique") : QString());
}

void ConfrontaSchema(const Tabella& tabella, const QJsonObject& atteso) {
  QStringList colonne;
  QStringList attese;
  for (const Colonna& colonna : tabella.colonne) colonne += Descrivi(colonna);
  for (const auto colonna : atteso[QLatin1String("columns")].toArray()) {
    attese += Descrivi(colonna.toObject());
  }
  EXPECT_EQ(colonne, attese);
  QStringList indici;
  QStringList attesi;
  for (const Indice& indice : tabella.indici) {
    indici += Descrivi(indice.nome, indice.colonne, indice.unico);
  }
  for (const auto valore : atteso[QLatin1String("indexes")].toArray()) {
    const QJsonObject indice = valore.toObject();
    attesi += Descrivi(indice[QLatin1String("name")].toString(),
                       indice[QLatin1String("columns")].toVariant().toStringList(),
                       indice[QLatin1String("unique")].toBool());
  }
  indici.sort();
  attesi.sort();
  EXPECT_EQ(indici, attesi);
}

Righe RigheAttese(const Tabella& tabella, const QJsonArray& righe) {
  Righe attese;
  for (const auto riga : righe) {
    QStringList valori;
    for (const Colonna& colonna : tabella.colonne) valori += Mostra(riga.toObject()[colonna.nome]);
    attese += valori;
  }
  return attese;
}

TEST(Jet, EveryTableAndRowIsAsTheIndependentReaderSeesIt) {
  RICHIEDI_FILE_JET();
  ASSERT_GE(FileJet().size(), 7);
  for (const QString& mdb : FileJet()) {
    SCOPED_TRACE(qPrintable(mdb));
    const QJsonObject righe = Atteso(mdb, ".json");
    const QJsonObject schema = Atteso(mdb, ".schema.json");
    const LettoreJet lettore(CartellaJet().filePath(mdb));
    ASSERT_EQ(lettore.Tabelle().size(), static_cast<std::size_t>(schema.size()));
    for (const Tabella& tabella : lettore.Tabelle()) {
      SCOPED_TRACE(qPrintable(tabella.nome));
      const QJsonObject atteso = schema[tabella.nome].toObject();
      ConfrontaSchema(tabella, atteso);
      EXPECT_EQ(lettore.UltimoContatore(tabella.nome),
                atteso[QLatin1String("lastCounter")].toInt());
      const Righe lette = Leggi(lettore, tabella.nome);
      EXPECT_EQ(lette.size(), atteso[QLatin1String("rows")].toInt());
      EXPECT_EQ(lette, RigheAttese(tabella, righe[tabella.nome].toArray()));
    }
  }
}

}  // namespace
}  // namespace torvi
