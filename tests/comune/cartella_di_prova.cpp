#include "comune/cartella_di_prova.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "archive/master.h"
#include "archive/schema.h"

namespace torvi {

namespace {

Database ConDati(Database database, const DatiConsegna& dati) {
  Aggiungi(database, "TabInfo",
           {{"Consegna", dati.consegna},
            {"NumInizio", dati.inizio},
            {"IDCentroSpoglio", dati.centro},
            {"AnnoProduzione", dati.anno}});
  return database;
}

StatoGlobale Stato(const CartellaDiProva& cartella, const Database& consegna) {
  StatoGlobale stato;
  stato.CartellaApplicazione = cartella.Percorso();
  stato.DbArchivio = consegna;
  stato.PathArchivio = consegna.Name();
  return stato;
}

}  // namespace

CartellaDiProva::CartellaDiProva() {
  EXPECT_TRUE(cartella_.isValid());
  EXPECT_TRUE(QDir(Percorso()).mkpath("mdb"));
  EXPECT_TRUE(QDir(Percorso()).mkpath("dump"));
}

Database CartellaDiProva::NuovaConsegna(const QString& nome, const DatiConsegna& dati) const {
  CreaDatabase(Mdb(nome), SchemaArchivio());
  return ConDati(OpenDatabase(Mdb(nome)), dati);
}

StatoGlobale CartellaDiProva::StatoConConsegna(const DatiConsegna& dati) const {
  return Stato(*this, NuovaConsegna(dati.consegna + ".MDB", dati));
}

StatoGlobale CartellaDiProva::StatoConCodici(const DatiConsegna& dati) const {
  const QString consegna = Mdb(dati.consegna + ".MDB");
  CreaMaster(consegna);
  return Stato(*this, ConDati(OpenDatabase(consegna), dati));
}

qint64 Aggiungi(const Database& database, const QString& tabella, Valori valori) {
  Recordset righe = database.OpenRecordset(tabella);
  righe.AddNew();
  for (const auto& [nome, valore] : valori) righe.Assegna(nome, valore);
  righe.Update();
  return righe.LastModified();
}

QStringList RigheTesto(const Database& database, const QString& origine, QStringList colonne) {
  if (colonne.isEmpty()) colonne = database.Colonne(origine);
  QStringList righe;
  for (Recordset lette = database.OpenRecordset(origine); !lette.Eof(); lette.MoveNext()) {
    QStringList valori;
    for (const QString& colonna : colonne) {
      const Campo campo = lette.Fields(colonna.toStdString());
      valori += campo.Nullo() ? "-" : campo.Testo();
    }
    righe += valori.join('|');
  }
  return righe;
}

QByteArray Byte(const QString& percorso) {
  QFile file(percorso);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << percorso.toStdString();
  return file.readAll();
}

void ScriviByte(const QString& percorso, const QByteArray& byte) {
  QFile file(percorso);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << percorso.toStdString();
  ASSERT_EQ(file.write(byte), byte.size());
}

}  // namespace torvi
