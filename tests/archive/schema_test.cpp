#include "archive/schema.h"

#include <gtest/gtest.h>

#include <QDir>
#include <algorithm>

#include "archive/database.h"
#include "archive/jet.h"
#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

template <typename Cosa>
const Cosa* Trova(const std::vector<Cosa>& cose, const QString& nome) {
  const auto cosa = std::ranges::find(cose, nome, &Cosa::nome);
  return cosa == cose.end() ? nullptr : &*cosa;
}

void ConfrontaColonne(const Tabella& nostra, const Tabella& genuina) {
  ASSERT_EQ(nostra.colonne.size(), genuina.colonne.size());
  for (std::size_t i = 0; i < genuina.colonne.size(); ++i) {
    const Colonna& colonna = nostra.colonne[i];
    EXPECT_EQ(colonna.nome, genuina.colonne[i].nome);
    EXPECT_EQ(colonna.tipo, genuina.colonne[i].tipo) << colonna.nome.toStdString();
    if (colonna.larghezza > 0) {
      EXPECT_EQ(colonna.larghezza, genuina.colonne[i].larghezza) << colonna.nome.toStdString();
    }
  }
}

void ConfrontaIndici(const Tabella& nostra, const Tabella& genuina) {
  for (const Indice& genuino : genuina.indici) {
    const Indice* indice = Trova(nostra.indici, genuino.nome);
    ASSERT_NE(indice, nullptr) << genuino.nome.toStdString();
    EXPECT_EQ(indice->colonne, genuino.colonne);
    EXPECT_EQ(indice->unico, genuino.unico) << genuino.nome.toStdString();
  }
}

TEST(Schema, HaTuttoQuelloDiUnArchivioGenuino) {
  const std::vector<std::pair<QString, const std::vector<Tabella>&>> casi = {
      {"master.mdb", SchemaArchivio()},
      {"catalogo norme.mdb", SchemaCatalogo()},
  };
  for (const auto& [file, schema] : casi) {
    const LettoreJet genuino(FileGenuino(file));
    EXPECT_EQ(schema.size(), genuino.Tabelle().size());
    for (const Tabella& genuina : genuino.Tabelle()) {
      SCOPED_TRACE(genuina.nome.toStdString());
      const Tabella* nostra = Trova(schema, genuina.nome);
      ASSERT_NE(nostra, nullptr);
      ConfrontaColonne(*nostra, genuina);
      ConfrontaIndici(*nostra, genuina);
    }
  }
}

class SchemaSuDisco : public ::testing::Test {
 protected:
  [[nodiscard]] QString Percorso(const QString& nome = "nuovo.mdb") const {
    return cartella_.Mdb(nome);
  }
  [[nodiscard]] Database Nuovo() const {
    CreaDatabase(Percorso(), SchemaArchivio());
    return OpenDatabase(Percorso());
  }

 private:
  CartellaDiProva cartella_;
};

TEST_F(SchemaSuDisco, OgniTabellaSiApreSuOgniSuoIndice) {
  CreaDatabase(Percorso("catalogo.mdb"), SchemaCatalogo());
  const std::vector<std::pair<Database, const std::vector<Tabella>&>> casi = {
      {Nuovo(), SchemaArchivio()},
      {OpenDatabase(Percorso("catalogo.mdb")), SchemaCatalogo()},
  };
  for (const auto& [database, schema] : casi) {
    QStringList nomi;
    for (const Tabella& tabella : schema) {
      SCOPED_TRACE(tabella.nome.toStdString());
      nomi += tabella.nome;
      Recordset righe = database.OpenRecordset(tabella.nome);
      EXPECT_TRUE(righe.Eof());
      for (const Indice& indice : tabella.indici) {
        EXPECT_NO_THROW(righe.Index(indice.nome.toStdString())) << indice.nome.toStdString();
        EXPECT_NO_THROW(righe.Seek(1));
      }
      for (const Colonna& colonna : tabella.colonne) {
        EXPECT_TRUE(righe.HaCampo(colonna.nome.toStdString())) << colonna.nome.toStdString();
      }
    }
    EXPECT_EQ(database.Tabelle(), nomi);
  }
}

TEST_F(SchemaSuDisco, LeIntestazioniDelFileSonoQuelleDiUnArchivio) {
  CreaDatabase(Percorso(), SchemaArchivio());
  const QByteArray byte = Byte(Percorso());
  EXPECT_EQ(byte.mid(16, 2).toHex(), "2000");      // pages of 8192 bytes
  EXPECT_EQ(byte.mid(18, 2).toHex(), "0101");      // rollback journal
  EXPECT_EQ(byte.mid(68, 4).toHex(), "546f7276");  // the mark
  EXPECT_EQ(QDir(QFileInfo(Percorso()).path()).entryList(QDir::Files), QStringList("nuovo.mdb"));
}

TEST_F(SchemaSuDisco, LeColonneNonScritteHannoIValoriAttesi) {
  const Database archivio = Nuovo();
  Aggiungi(archivio, "TabFonte", {{"TP", "LIO"}});
  Recordset fonte = archivio.OpenRecordset("TabFonte");
  for (const char* chiave : {"fonte", "IDRegione", "IDProvincia", "IDCitta", "IDMinistero",
                             "IDAmministrazione", "IDAutorita", "IDSezione", "IDStato"}) {
    EXPECT_EQ(fonte.Fields(chiave), Campo(0)) << chiave;
  }
  EXPECT_FALSE(fonte.Fields("ordinanza").Logico());
  EXPECT_FALSE(fonte.Fields("decreto").Logico());
  EXPECT_TRUE(fonte.Fields("numero").Nullo());

  Aggiungi(archivio, "TabClasse2000", {{"Check", "0"}});
  Recordset classe = archivio.OpenRecordset("TabClasse2000");
  EXPECT_EQ(classe.Fields("IDClasse2000-D"), Campo(0));
  EXPECT_TRUE(classe.Fields("IDClasse2000-S").Nullo());
  EXPECT_TRUE(classe.Fields("Classe2000-D").Nullo());
}

// Affinities of the engine turn "007" into 7 where a type's name is badly chosen.
TEST_F(SchemaSuDisco, UnTestoDiCifreRestaTesto) {
  const Database archivio = Nuovo();
  Aggiungi(archivio, "TabRifBibl", {{"Annata", "007"}, {"Data", "1e3"}});
  Aggiungi(archivio, "TabTesto", {{"testo", "0012"}});
  Aggiungi(archivio, "TabDocumento", {{"td", "01"}, {"Bib", ""}});
  Aggiungi(archivio, "TabNIT", {{"data", "04/11/1950"}});
  Recordset riferimento = archivio.OpenRecordset("TabRifBibl");
  EXPECT_EQ(riferimento.Fields("Annata"), Campo("007"));
  EXPECT_EQ(riferimento.Fields("Data"), Campo("1e3"));
  EXPECT_EQ(archivio.OpenRecordset("TabTesto").Fields("testo"), Campo("0012"));
  Recordset documento = archivio.OpenRecordset("TabDocumento");
  EXPECT_EQ(documento.Fields("td"), Campo("01"));
  EXPECT_EQ(documento.Fields("Bib"), Campo(""));
  EXPECT_EQ(archivio.OpenRecordset("TabNIT").Fields("data"), Campo("04/11/1950"));
}

TEST_F(SchemaSuDisco, UnContatoreNonTornaIndietro) {
  const Database archivio = Nuovo();
  EXPECT_EQ(Aggiungi(archivio, "TabDocumento", {{"td", "01"}}), 1);
  archivio.Execute("delete * from TabDocumento");
  EXPECT_EQ(Aggiungi(archivio, "TabDocumento", {{"td", "02"}}), 2);
}

TEST_F(SchemaSuDisco, UnFileCheCEGiaRestaComEra) {
  ScriviByte(Percorso(), "non toccare");
  EXPECT_EQ(NumeroErrore([&] { CreaDatabase(Percorso(), SchemaArchivio()); }), 75);
  EXPECT_EQ(Byte(Percorso()), "non toccare");
  EXPECT_EQ(QDir(QFileInfo(Percorso()).path()).entryList(QDir::Files).size(), 1);
}

}  // namespace
}  // namespace torvi
