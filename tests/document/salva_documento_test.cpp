#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"
#include "document/salva.h"

namespace torvi {
namespace {

// Document 1 with a change in every part that a save writes.
class Salvataggio : public testing::Test {
 protected:
  Salvataggio() {
    prova.Apri("1");
    documento.campi.txtPagine = "99";
    documento.campi.txtTitolo = "Titolo nuovo";
    RigaResponsabilita persona;
    persona.PrimoElemento = "Nuova";
    persona.SecondoElemento = "Persona";
    prova.stato.RigheResponsabilita = {persona};
    RigaClasse coppia;
    coppia.Sistematico = archivio.OpenRecordset("TabClasse2000-S").Fields("CodiceS").Testo();
    coppia.Descrittore = "*nuovo";
    coppia.Check = 2;
    prova.stato.RigheClasse = {coppia};
    RigaFonte fonte;
    fonte.FonteNorm = archivio.OpenRecordset("TabFonteInterna").Fields("FonteNorm").Testo();
    fonte.TP = "LICO";
    fonte.Testo = "art. 1 cost.";
    prova.stato.RigheFonte = {fonte};
  }

  [[nodiscard]] static QString Valore(const Database& da, const char* istruzione,
                                      const char* colonna) {
    const Recordset riga = da.OpenRecordset(istruzione);
    return riga.Eof() ? QString() : riga.Fields(colonna).TestoOVuoto();
  }
  // The steps whose change another reader of the file finds.
  [[nodiscard]] std::string Scritti() const {
    const Database letto = OpenDatabase(archivio.Name(), Accesso::SolaLettura);
    std::string passi;
    const auto passo = [&](const char* nome, const char* istruzione, const char* colonna,
                           const QString& atteso) {
      if (Valore(letto, istruzione, colonna) == atteso) passi += std::string(nome) + ' ';
    };
    passo("riferimento", "select count(*) as n from TabRifBibl", "n", "3");
    passo("riga", "select pagine from TabDocumento where IDDocumento = 1", "pagine", "99");
    passo("persone",
          "select * from LegameDocResp, TabResponsabilita where LegameDocResp.IDDoc = 1 and "
          "LegameDocResp.IDResponsabilita = TabResponsabilita.IDResponsabilita",
          "PrimoElemento", "Nuova");
    passo("testi",
          "select * from LegameDocTesto, TabTesto where LegameDocTesto.IDDoc = 1 and Tipo = '0' "
          "and LegameDocTesto.IDTesto = TabTesto.IDTesto",
          "testo", "Titolo nuovo");
    passo("classi", "select count(*) as n from LegameDocClass where IDDoc = 1", "n", "1");
    passo("fonti", "select count(*) as n from LegameDocFonte where IDDoc = 1", "n", "1");
    return passi;
  }

  ArchivioDiProva prova;
  Documento& documento = prova.documento;
  const Database& archivio = prova.stato.DbArchivio;
};

TEST_F(Salvataggio, WithoutAJournalCodeNothingIsWritten) {
  documento.campi.txtCPer.clear();
  documento.SalvaComeNuovo = true;
  EXPECT_FALSE(SalvaDocumento(documento));
  EXPECT_EQ(prova.dialoghi.Messaggi(), QStringList("periodico non ancora immesso"));
  EXPECT_TRUE(documento.SalvaComeNuovo);
  EXPECT_EQ(Scritti(), "");
}

TEST_F(Salvataggio, WritesEveryPartAndSaysSo) {
  EXPECT_TRUE(SalvaDocumento(documento));
  EXPECT_EQ(prova.dialoghi.Messaggi(), QStringList("Documento salvato!"));
  EXPECT_EQ(Scritti(), "riferimento riga persone testi classi fonti ");
}

TEST_F(Salvataggio, TwiceInTheNewStateGivesTwoRowsAndTwiceTheLinks) {
  documento.campi.txtID = "3";
  documento.numeroMostrato = 3;
  for (const char* legami : {"1", "2"}) {
    documento.SalvaComeNuovo = true;
    EXPECT_TRUE(SalvaDocumento(documento));
    EXPECT_FALSE(documento.SalvaComeNuovo);
    for (const char* conto : {"select count(*) as n from LegameDocResp where IDDoc = 3",
                              "select count(*) as n from LegameDocClass where IDDoc = 3",
                              "select count(*) as n from LegameDocFonte where IDDoc = 3",
                              "select count(*) as n from LegameDocTesto where IDDoc = 3 and "
                              "Tipo = '0'",
                              "select count(*) as n from TabDocumento where IDDocumento > 2"}) {
      EXPECT_EQ(Valore(archivio, conto, "n"), legami) << conto;
    }
  }
  EXPECT_EQ(Valore(archivio, "select pagine from TabDocumento where IDDocumento = 1", "pagine"),
            "12-34");
}

struct Guasto {
  const char* passo;
  int errore;
  const char* scritti;
  void (*prepara)(ArchivioDiProva& prova);
};
const Guasto kGuasti[] = {
    {"riferimento", 6, "",
     [](ArchivioDiProva& prova) {
       prova.Metti("TabRifBibl", {{"IDRifBibl", 32767}});
     }},
    {"persone", 6, "riferimento riga ",
     [](ArchivioDiProva& prova) {
       prova.Metti("TabResponsabilita", {{"IDResponsabilita", 32767}});
     }},
    {"testi", 6, "riferimento riga persone ",
     [](ArchivioDiProva& prova) {
       prova.Metti("TabTesto", {{"IDTesto", 32767}});
     }},
    {"classi", 3021, "riferimento riga persone testi ",
     [](ArchivioDiProva& prova) { prova.stato.RigheClasse[0].Sistematico = "ZZZZZ"; }},
    {"fonti", 3021, "riferimento riga persone testi classi ",
     [](ArchivioDiProva& prova) { prova.stato.RigheFonte[0].FonteNorm = "inesistente"; }},
};

class SalvataggioGuasto : public Salvataggio, public testing::WithParamInterface<Guasto> {};

TEST_P(SalvataggioGuasto, LeavesTheStepsBeforeItWritten) {
  const Guasto& guasto = GetParam();
  guasto.prepara(prova);
  EXPECT_EQ(NumeroErrore([this] { SalvaDocumento(documento); }), guasto.errore);
  EXPECT_EQ(Scritti(), guasto.scritti);
  EXPECT_EQ(prova.dialoghi.Messaggi(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Step, SalvataggioGuasto, testing::ValuesIn(kGuasti),
                         [](const auto& caso) { return caso.param.passo; });

}  // namespace
}  // namespace torvi
