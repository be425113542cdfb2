// Every report of the sample delivery and of a genuine one against files of tests/dati/rapporti/,
// to the byte. Those files were not taken from the program: they were worked out a second time from
// the rules of each report, and only then compared.
#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <algorithm>

#include "archive/database.h"
#include "comune/cartella_di_prova.h"
#include "programma.h"

namespace torvi {
namespace {

struct Rapporto {
  const char* comando;
  QStringList file;              // of dump/
  int erroreGenuina = 0;         // the eighth document cites a reference that is not there
  const char* atteso = nullptr;  // what it is compared with, where that bears another name
};

QStringList DelFormato(const char* formato) {
  return {QStringLiteral("lexxdump %1.A01").arg(QLatin1String(formato)),
          QStringLiteral("errori.A01"), QStringLiteral("errClasse.A01"),
          QStringLiteral("errFonte.A01")};
}

const std::vector<Rapporto>& Tavola() {
  static const std::vector<Rapporto> kTavola = {
      {"stampa completa", {"stampaRTF-C-A01.rtf"}, 3021},
      {"stampa testi", {"stampaRTF-T-A01.rtf"}, 3021},
      {"stampa testi --filtro", {"stampaRTF-T-A01.rtf"}, 0, "filtro.rtf"},
      {"stampa prospetto-rtf", {"prospetto A01.rtf"}},
      {"stampa prospetto-html", {"prospetto A01.html"}},
      {"stampa consistenza", {"consistenza.A01"}},
      {"stampa celex", {"stampaHTML A01.htm"}},
      {"stampa hudoc", {"stampaHTML_GEI A01.htm"}},
      {"estrai note", {"note.A01"}},
      {"estrai nuovi", {"nuovi.A01"}},
      {"esporta isis --controllo-fonti", DelFormato("isis"), 3021},
      {"esporta cassazione --controllo-fonti", DelFormato("cassazione"), 3021},
      {"esporta storico --controllo-fonti", DelFormato("storico"), 3021},
  };
  return kTavola;
}

void Confronta(const QByteArray& scritto, const QString& atteso) {
  const QByteArray byte = Byte(FileProgetto(QStringLiteral("tests/dati/rapporti/") + atteso));
  if (scritto == byte) return;
  const auto primo = std::ranges::mismatch(scritto, byte).in1 - scritto.begin();
  ADD_FAILURE() << atteso.toStdString() << ": differs from byte " << primo
                << " on\n written: " << scritto.mid(primo, 80).toPercentEncoding(" ").toStdString()
                << "\nexpected: " << byte.mid(primo, 80).toPercentEncoding(" ").toStdString();
}

class Rapporti : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* nome : {"testata new.rtf", "testata prospetto.rtf"}) {
      QFile::copy(FileProgetto(QStringLiteral("risorse/") + QLatin1String(nome)),
                  cartella_.Percorso() + u'/' + QLatin1String(nome));
    }
  }
  [[nodiscard]] EsitoProgramma Esegui(const QStringList& argomenti) const {
    return Torvi(QStringList{QStringLiteral("--cartella"), cartella_.Percorso()} + argomenti);
  }
  void Fa(const Rapporto& rapporto, const QString& dati, int errore) const {
    SCOPED_TRACE(dati.toStdString() + ": " + rapporto.comando);
    for (const QString& nome : rapporto.file) QFile::remove(cartella_.Dump(nome));
    QStringList argomenti = QString::fromLatin1(rapporto.comando).split(u' ');
    argomenti.insert(2, archivio_);
    const EsitoProgramma esito = Esegui(argomenti);
    static const QRegularExpression kNumero(QStringLiteral("Errore di run-time '(\\d+)'"));
    EXPECT_EQ(kNumero.match(esito.errori).captured(1).toInt(), errore)
        << esito.errori.toStdString();
    EXPECT_EQ(esito.codice, errore == 0 ? 0 : 1);
    for (const QString& nome : rapporto.file) {
      Confronta(Byte(cartella_.Dump(nome)),
                dati + u'/' + (rapporto.atteso == nullptr ? nome : QString(rapporto.atteso)));
    }
  }

  CartellaDiProva cartella_;
  QString archivio_ = cartella_.Mdb(QStringLiteral("A01.MDB"));
};

// As many documents as it takes for every kind of source and of finding; the kinds of note and the
// new names that it still lacks are put in.
TEST_F(Rapporti, OfTheSampleDelivery) {
  for (const QStringList& comando :
       {QStringList{"catalogo", cartella_.Mdb(QStringLiteral("catalogo norme.mdb"))},
        QStringList{"esempio", archivio_, "--documenti", "37"}}) {
    ASSERT_EQ(Esegui(comando).codice, 0);
  }
  {
    const Database archivio = OpenDatabase(archivio_);
    for (const char* istruzione :
         {"update TabDocumento set td = '09' where IDDocumento = 12",
          "update TabDocumento set td = '07' where IDDocumento = 20",
          "update TabDocumento set td = '08' where IDDocumento = 24",
          "update TabStato set nuovo = 1 where stato = 'Germania'",
          "update TabCitta set nuovo = 1 where citta = 'Spoleto' or citta like 'Reggio nell*'",
          "update TabSezione set nuovo = 1 where sigla = 'sez. un.'",
          "update TabMinistero set nuovo = 1 where MinisteroNorm = 'Ambiente'",
          "update TabAmministrazione set nuovo = 1 where AmministrazioneNorm = 'ACI'"}) {
      archivio.Execute(QLatin1String(istruzione));
    }
  }
  for (const Rapporto& rapporto : Tavola()) Fa(rapporto, QStringLiteral("esempio"), 0);
}

// As it came it ends early; without the documents that cite what is not there it goes through.
TEST_F(Rapporti, OfAGenuineDelivery) {
  QFile::copy(FileGenuino(QStringLiteral("catalogo norme data.mdb")),
              cartella_.Mdb(QStringLiteral("catalogo norme.mdb")));
  QFile::copy(FileGenuino(QStringLiteral("consegna.mdb")), archivio_);
  QFile::setPermissions(archivio_, QFile::ReadOwner | QFile::WriteOwner);
  for (const Rapporto& rapporto : Tavola()) {
    Fa(rapporto, QStringLiteral("genuina"), rapporto.erroreGenuina);
  }
  {
    const Database archivio = OpenDatabase(archivio_);
    archivio.Execute(
        QStringLiteral("delete * from TabDocumento where IDDocumento = 8 or IDDocumento = 11"));
    archivio.Execute(QStringLiteral("update TabFonte set numero = \"\" where numero is null"));
  }
  for (const size_t quale : {0U, 10U})
    Fa(Tavola().at(quale), QStringLiteral("genuina riparata"), 0);
}

}  // namespace
}  // namespace torvi
