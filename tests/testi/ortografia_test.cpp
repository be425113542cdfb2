#include "testi/ortografia.h"

#include <gtest/gtest.h>

#include <QDir>

#include "comune/cartella_di_prova.h"
#include "testi/revisione.h"

namespace torvi {
namespace {

class OrtografiaDiProva : public testing::Test {
 protected:
  Ortografia Apri(Lingua lingua = Lingua::Italiano) {
    return {lingua, dizionari.Di(lingua), DizionarioPersonale(cartella.Percorso(), lingua)};
  }
  QString Errate(const QString& testo, Lingua lingua = Lingua::Italiano) {
    QStringList errate;
    const Ortografia ortografia = Apri(lingua);
    for (const Segnalazione& trovata : ortografia.Segnala(testo)) errate += trovata.testo;
    return errate.join(u'|');
  }
  [[nodiscard]] QString FilePersonale() const {
    return cartella.Percorso() + "/dizionari/personale-italiano.txt";
  }

  CartellaDiProva cartella;
  Dizionari dizionari{cartella.Percorso()};
};

TEST_F(OrtografiaDiProva, FindsWrongWordsAndLeavesLegalWritingAlone) {
  struct Caso {
    const char* testo;
    const char* errate;
    Lingua lingua = Lingua::Italiano;
  };
  for (const Caso& caso : {
           Caso{"il provedimento dell'aministrazione e dell’autorrità",
                "provedimento|aministrazione|autorrità"},
           {"del'amministrazione", "del'amministrazione"},
           {"dell'amministrazione, l’interpretazione, sull'onere, po' e mo'", ""},
           {"perchè la societa' puo' e l'autorita' pò", "perchè|societa'|puo'|autorita'|pò"},
           {"le parole 'danno', \"colpa\" e ‘nesso’ e 'provedimento'", "provedimento"},
           {"giuridico-economico, anti-sovrano e giuridico-ecconomico", "ecconomico"},
           {"d.lgs. n. 112, art. 2, artt. 3-bis e 4, c.p.c., S.p.A., Cass. civ., sez. un.", ""},
           {"CEDU, TFUE, dell'INPS, CdA, PhD, art2043, 2bis, C-131/12, l. 241/90, xii) e iv)", ""},
           {"Trib. Roma, ord. 3 maggio; disc. 5; cost. Italia; p. 3 ss.", ""},
           {"www.giustizzia.it, aa@bbbb.it e http://xyzw.it/abcd ma giustizzia", "giustizzia"},
           {"ex lege, iura novit curia, culpa in contrahendo, giurisprudenza eurounitaria", ""},
           {"The european court's organisation, parties' rights, acquis", "european",
            Lingua::Inglese},
           {"it doesn't recieve the Court's judgement", "recieve", Lingua::Inglese},
       }) {
    EXPECT_EQ(Errate(caso.testo, caso.lingua).toStdString(), caso.errate) << caso.testo;
  }
}

TEST_F(OrtografiaDiProva, ProposesTheAccentOfATypewriterFirst) {
  const Ortografia ortografia = Apri();
  const auto prima = [&ortografia](const QString& testo) {
    return ortografia.Proposte(ortografia.Segnala(testo).front()).value(0).toStdString();
  };
  EXPECT_EQ(prima("societa'"), "società");
  EXPECT_EQ(prima("perche'"), "perché");
  EXPECT_EQ(prima("aministrazione"), "amministrazione");
}

TEST_F(OrtografiaDiProva, PersonalWordsAreKeptInAFileThatMayBeEdited) {
  QDir().mkpath(cartella.Percorso() + "/dizionari");
  ScriviByte(FilePersonale(),
             "\xEF\xBB\xBF"
             "neologio\r\n\r\nTaricco");
  EXPECT_EQ(Errate("Neologio Taricco taricco zzorro"), "taricco|zzorro");
  Ortografia ortografia = Apri();
  ScriviByte(FilePersonale(), "altrove");
  const QString testo = "zzorro' e Zzorro";
  ortografia.AggiungiAlDizionario(ortografia.Segnala(testo).front());
  EXPECT_TRUE(ortografia.Segnala(testo).empty());
  EXPECT_EQ(Byte(FilePersonale()), "altrove\nzzorro\n");
  EXPECT_EQ(Errate("zzorro altrove neologio"), "neologio");
}

TEST_F(OrtografiaDiProva, AFileThatCannotBeWrittenLosesNothing) {
  ScriviByte(cartella.Percorso() + "/dizionari", "no folder");
  Ortografia ortografia = Apri();
  Revisione revisione("zzorro", ortografia);
  EXPECT_EQ(NumeroErrore([&revisione] { revisione.AggiungiAlDizionario(); }), 75);
  EXPECT_TRUE(revisione.Corrente());
  EXPECT_EQ(ortografia.Segnala("zzorro").size(), 1U);
}

TEST_F(OrtografiaDiProva, ARevisionGoesThroughTheText) {
  Ortografia ortografia = Apri();
  Revisione revisione("aqq bqq aqq cqq dqq cqq bqq aqq", ortografia);
  revisione.SostituisciTutto("una aqq");  // wrong again, yet asked no more
  EXPECT_EQ(revisione.Corrente()->testo, "bqq");
  revisione.Ignora();
  EXPECT_EQ(revisione.Testo(), "una aqq bqq una aqq cqq dqq cqq bqq aqq");
  revisione.IgnoraTutto();
  EXPECT_EQ(revisione.Corrente()->testo, "dqq");
  revisione.Sostituisci({});
  EXPECT_EQ(revisione.Corrente()->testo, "bqq");
  revisione.Sostituisci("bqq");
  EXPECT_FALSE(revisione.Corrente());
  EXPECT_EQ(revisione.Testo(), "una aqq bqq una aqq cqq  cqq bqq una aqq");
}

}  // namespace
}  // namespace torvi
