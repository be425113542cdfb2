#include "archive/csv.h"

#include <gtest/gtest.h>

#include <QDir>

#include "archive/database.h"
#include "archive/master.h"
#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

// A copy of the rows, one file of which gets a fault.
class RigheGuaste : public ::testing::Test {
 protected:
  void SetUp() override {
    QDir(cartella.Percorso()).mkpath("dati");
    const QDir origine(CartellaDati());
    for (const QString& nome : origine.entryList()) {
      ScriviByte(Dati(nome), Byte(origine.filePath(nome)));
    }
  }
  [[nodiscard]] QString Dati(const QString& nome = {}) const {
    return cartella.Percorso() + "/dati/" + nome;
  }
  CartellaDiProva cartella;
};

TEST_F(RigheGuaste, IlGuastoNominaFileERigaENullaAppare) {
  struct Caso {
    const char* file;
    QByteArray contenuto;
    int numero;
    const char* descrizione;
  };
  const QList<Caso> casi = {
      {"TabBib.csv", "IDBib,TipoBibliografia\n0,uno\n1\n", 3421,
       "TabBib.csv, riga 3: 1 celle invece di 2"},
      {"TabBib.csv", "IDBib,TipoBibliografia\n0,uno\n10,due\n", 3421,
       "TabBib.csv, riga 3: IDBib = \"10\""},
      {"TabBib.csv", "IDBib,TipoBibliografia\n0,\"uno\ndue\"\n0,tre\n", 3022,
       "TabBib.csv, riga 4: TabBib"},
      {"TabBib.csv", "IDBib,Tipo\n0,uno\n", 3265, "TabBib.csv, riga 1: Tipo"},
      {"TabBib.csv", "IDBib,TipoBibliografia\n0,\"uno\n", 3421,
       "TabBib.csv, riga 2: virgolette non chiuse"},
      {"TabBib.csv", "IDBib,TipoBibliografia\n0,u\"no\n", 3421,
       "TabBib.csv, riga 2: virgolette fuori posto"},
      {"TabBib.csv", "IDBib,TipoBibliografia\n0,\"u\"no\n", 3421,
       "TabBib.csv, riga 2: virgolette fuori posto"},
      {"TabBib.csv", "IDBib,TipoBibliografia\n0,\xE0\n", 3421,
       "TabBib.csv, riga 1: testo non in UTF-8"},
      {"TabBib.csv", "", 3421, "TabBib.csv, riga 1: manca la riga dei nomi"},
      {"TabPeriodicita.csv", "IDPeriodicita,Periodicita\nx,mensile\n", 3421,
       "TabPeriodicita.csv, riga 2: IDPeriodicita = \"x\""},
  };
  for (const Caso& caso : casi) {
    const QByteArray sano = Byte(Dati(caso.file));
    ScriviByte(Dati(caso.file), caso.contenuto);
    const QString errore = ErroreDi([&] { CreaMaster(cartella.Mdb("m.mdb"), Dati()); });
    EXPECT_TRUE(errore.startsWith(QString::number(caso.numero) + ' ') &&
                errore.endsWith(caso.descrizione))
        << errore.toStdString();
    EXPECT_TRUE(QDir(cartella.Mdb({})).entryList(QDir::Files).isEmpty()) << caso.descrizione;
    ScriviByte(Dati(caso.file), sano);
  }
  EXPECT_EQ(NumeroErrore([&] { CreaMaster(cartella.Mdb("m.mdb"), Dati()); }), 0);
}

TEST_F(RigheGuaste, CelleTraVirgoletteVuoteENulle) {
  ScriviByte(Dati("TabBib.csv"),
             "IDBib,TipoBibliografia\r\n0,\"a \"\"b\"\", c\r\nd\"\r\n1,\"\"\r\n2,\r\n3,è");
  CreaMaster(cartella.Mdb("m.mdb"), Dati());
  const Database master = OpenDatabase(cartella.Mdb("m.mdb"));
  QList<Campo> letti;
  for (Recordset righe = master.OpenRecordset("TabBib"); !righe.Eof(); righe.MoveNext()) {
    letti += righe.Fields("TipoBibliografia");
  }
  EXPECT_EQ(letti, (QList<Campo>{"a \"b\", c\nd", "", {}, "è"}));
}

TEST_F(RigheGuaste, UnFileDiRigheMancanteNonPassaInSilenzio) {
  QFile::remove(Dati("TabStato.csv"));
  EXPECT_EQ(NumeroErrore([&] { CreaMaster(cartella.Mdb("m.mdb"), Dati()); }), 53);
  EXPECT_FALSE(QFile::exists(cartella.Mdb("m.mdb")));
}

}  // namespace
}  // namespace torvi
