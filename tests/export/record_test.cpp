#include "export/record.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"
#include "export/file_testo.h"

namespace torvi {
namespace {

// `quante` words of so many letters, each with a blank behind it.
QString Parole(int lunghezza, int quante) {
  return QString(QString(lunghezza, u'x') + u' ').repeated(quante);
}

std::string Scritto(const CartellaDiProva& cartella, Record& record) {
  const QString percorso = cartella.Dump("lexxdump");
  FileTesto file(percorso, Apertura::Scrittura);
  record.ScriviRecord(file);
  file.Close();
  return Byte(percorso).toStdString();
}

TEST(Record, ALineHoldsAtMost245CharactersAndBreaksBehindABlank) {
  const std::string x(244, 'x');
  struct Caso {
    QString contenuto;
    std::string righe;
  };
  const Caso kCasi[] = {
      {"", "23\r\n"},
      {QString(245, u'x'), "23" + x + "x\r\n"},
      {Parole(244, 1), "23" + x + " \r\n"},
      {Parole(244, 1) + "y", "23" + x + " \t\r\n23y\r\n"},
      {Parole(244, 1) + " y", "23" + x + " \t\r\n23 y\r\n"},
      {"a " + QString(243, u'x') + "y", "23a \t\r\n23" + std::string(243, 'x') + "y\r\n"},
      {Parole(244, 2) + "y", "23" + x + " \t\r\n23" + x + " \t\r\n23y\r\n"},
      {Parole(244, 2), "23" + x + " \t\r\n23" + x + " \r\n"},
      {QString(239, u'x') + " è\tà\r\nb",
       "23" + std::string(239, 'x') + " \t\r\n23\x8a\t\x85  b\r\n"},
  };
  const CartellaDiProva cartella;
  for (const Caso& caso : kCasi) {
    Record record;
    record.AggiungiRiga(tag::kIdentificativo, "2001A0012");
    record.AggiungiRiga(tag::kCodiciClasse, caso.contenuto);
    EXPECT_EQ(Scritto(cartella, record), "2001A0012\r\n2\r\n 12001A0012\r\n" + caso.righe)
        << caso.contenuto.size();
  }
}

// Texts keep their line breaks; elsewhere one would begin a line without a tag.
TEST(Record, OnlyTextsHoldLineBreaks) {
  const CartellaDiProva cartella;
  const QString valore = QString::fromUtf16(u"a\r\nb\0c", 6);
  const std::string intero("a\r\nb\0c", 6);
  for (const QString& tag :
       {tag::kAutori, tag::kCuratori, tag::kRiferimento, tag::kFonti, tag::kClassi1999,
        tag::kSecondoRiferimento, tag::kCitazione, tag::kCodiciClasse, tag::kClassiStorico,
        tag::kClassiCassazione, tag::kTitolo, tag::kRiassunto, tag::kFontiEtichettate}) {
    const bool testo =
        tag == tag::kTitolo || tag == tag::kRiassunto || tag == tag::kFontiEtichettate;
    Record record;
    record.AggiungiRiga(tag, "x");
    record.AggiungiRiga(tag, valore);
    EXPECT_EQ(Scritto(cartella, record), "x\r\n2\r\n" + tag.toStdString() + "x\r\n" +
                                             tag.toStdString() + (testo ? intero : "a  b c") +
                                             "\r\n");
  }
}

TEST(Record, ALongTextBecomesFieldsOfAtMost1000Characters) {
  const QString mille = Parole(499, 2);
  struct Caso {
    QString testo;
    QStringList campi;
  };
  const Caso kCasi[] = {
      {mille, {mille}},
      {mille + "y", {mille, "y"}},
      {QString(1000, u'x'), {QString(1000, u'x')}},
      {mille + mille + "y", {mille, mille, "y"}},
      {"a " + QString(998, u'x') + "y", {"a ", QString(998, u'x') + "y"}},
  };
  for (const Caso& caso : kCasi) {
    Record record;
    record.AggiungiTesto(tag::kRiassunto, caso.testo);
    QStringList campi;
    for (const Record::Riga& riga : record.RigheRecord()) {
      EXPECT_EQ(riga.tag, "13");
      campi += riga.contenuto.toString();
    }
    EXPECT_EQ(campi, caso.campi);
    EXPECT_EQ(record.NumRighe(), caso.campi.size());
  }
}

TEST(Record, AWordIsNeverCut) {
  const CartellaDiProva cartella;
  Record record;
  record.AggiungiRiga(tag::kIdentificativo, "2001A0012");
  EXPECT_EQ(NumeroErrore([&] { record.AggiungiTesto(tag::kTitolo, QString(1001, u'x')); }), 5);
  EXPECT_EQ(record.NumRighe(), 1);
  record.AggiungiTesto(tag::kTitolo, QString(245, u'x') + " y");
  EXPECT_EQ(NumeroErrore([&] { (void)Scritto(cartella, record); }), 5);
  EXPECT_EQ(Byte(cartella.Dump("lexxdump")), "");
}

TEST(Record, TheCountOfFieldsIsASixteenBitNumber) {
  Record record;
  for (int i = 0; i < 32767; ++i) record.AggiungiRiga(tag::kTitolo, {});
  EXPECT_EQ(NumeroErrore([&] { record.AggiungiRiga(tag::kTitolo, {}); }), 6);
  EXPECT_EQ(record.NumRighe(), 32767);
}

}  // namespace
}  // namespace torvi
