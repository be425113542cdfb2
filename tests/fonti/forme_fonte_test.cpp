#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include "archive/errore.h"
#include "cli/json_fonte.h"
#include "comune/citazioni.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"
#include "fonti/frmModificaFonte.h"
#include "fonti/frmSceltaTipoFonte.h"

namespace torvi {
namespace {

TEST(FrmSceltaTipoFonte, LeavesTheKindOfLaw) {
  const struct {
    const char* copione;
    const char* scelto;
  } casi[] = {{"{Return}", "IT"},
              {"{Down}{Return}", "NIT/GEI"},
              {"{Down}{Down} {Alt+P}", "NIC/GEC"},
              {"{Down}{Down}{Down}{Return}", "NS/GS"},
              {"{Down}{Down}{Down}{Down} {Tab}{Return}", "FC"},
              {"{Down}{Down}{Down}{Down}{Down}{Return}", "FS"},
              {"{Alt+P}", "prima"},
              {"{Down} {Alt+A}", ""},
              {"{Down}{Esc}", ""}};
  for (const auto& caso : casi) {
    StatoGlobale stato;
    stato.TipoFonteScelto = "prima";
    frmSceltaTipoFonte forma(stato);
    Operatore::Esegue([&] { forma.exec(); }, {[&](QWidget&) { Batti(caso.copione); }});
    EXPECT_EQ(stato.TipoFonteScelto, caso.scelto) << caso.copione;
  }
}

class FormaModificaFonte : public testing::Test {
 protected:
  int Apre(qint16 indice, const QString& copione) {
    frmModificaFonte forma(stato, dialoghi, indice);
    forma.PreparaFonteDaModificare();
    int esito = -1;
    Operatore::Esegue([&] { esito = forma.exec(); }, {Forma("Modifica fonte", copione)});
    return esito;
  }

  StatoGlobale stato;
  DialoghiScritti dialoghi;
};

// From one field to the next, the whole text replaced: each must come from and go to its own place.
TEST_F(FormaModificaFonte, WritesEveryFieldBack) {
  stato.RigheFonte.resize(2);
  RigaFonte& riga = stato.RigheFonte[1];
  riga.IDFonte = 12;
  riga.TP = "LIS";
  riga.Testo = "l. 1/2001";
  riga.Decreto = true;
  riga.Cancellata = true;
  EXPECT_EQ(
      Apre(
          1,
          "{Ctrl+A}NIC{Tab}Dir. UE{Tab}5{Tab}maggio{Tab}2001{Tab}6{Tab}7{Tab}bis{Tab}8{Tab}ter{Tab}"
          "c{Tab}9{Tab}A{Tab}Min{Tab}Amm{Tab}Aut{Tab}Stato{Tab}Città{Tab}I{Tab}LA{Tab}BZ"
          "{Tab}l'\"altro\"{Tab} {Tab} {Tab}{Ctrl+A}Dir. UE 6/2001*NIC* resto{Alt+E}"),
      QDialog::Accepted);
  EXPECT_EQ(Mostra(Ridotta(JsonFonte(stato.RigheFonte[1]))),
            R"({"Allegato":"A","Altro":"l'\"altro\"","Amministrazione":"Amm","Anno":"2001",)"
            R"("Articolo":"7","Autorita":"Aut","Cancellata":true,"Citta":"Città","Comma":"8",)"
            R"("FonteNorm":"Dir. UE","Giorno":"5","IDFonte":12,"Lettera":"c","Mese":"maggio",)"
            R"("Ministero":"Min","Numero":"6","NumeroP":"9","Ordinanza":true,"Provincia":"BZ",)"
            R"("Regione":"LA","RipA":"bis","RipC":"ter","Sezione":"I","Stato":"Stato",)"
            R"("TP":"NIC","Testo":"Dir. UE 6/2001"})");
  EXPECT_TRUE(stato.RigheFonte[0] == RigaFonte());

  // What was written stands in the same fields again.
  const auto prima = stato.RigheFonte;
  EXPECT_EQ(Apre(1, "{Alt+E}"), QDialog::Accepted);
  EXPECT_TRUE(stato.RigheFonte == prima);
}

TEST_F(FormaModificaFonte, ShowsTheCodeOfOtherLawAndKeepsWhatIsAbandoned) {
  stato.RigheFonte.resize(1);
  stato.RigheFonte[0].TP = "GEC";
  stato.RigheFonte[0].Testo = "C. giust.";
  stato.RigheFonte[0].Cancellata = true;
  const auto prima = stato.RigheFonte;
  frmModificaFonte forma(stato, dialoghi, 0);
  forma.PreparaFonteDaModificare();
  EXPECT_EQ(Trova<QPlainTextEdit>(forma, "txtTesto").toPlainText(), "C. giust.*GEC*");
  EXPECT_EQ(Apre(0, "FCC{Tab}altro{Alt+A}"), QDialog::Rejected);
  EXPECT_EQ(Apre(-1, "FCC{Alt+E}"), QDialog::Accepted);
  EXPECT_TRUE(stato.RigheFonte == prima);
  EXPECT_THROW(Apre(1, {}), ErroreEsecuzione);
}

}  // namespace
}  // namespace torvi
