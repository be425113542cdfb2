#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"
#include "document/carica.h"
#include "document/salva_parti.h"

namespace torvi {
namespace {

TEST(SalvaRiferimento, DatesInAllTheirShapes) {
  struct Caso {
    const char* gg;
    const char* mm;
    const char* aa;
    const char* data;
  };
  const Caso casi[] = {{"3", "2", "2001", "03/02/2001"}, {"13", "12", "1999", "13/12/1999"},
                       {"", "", "2001", "00/00/2001"},   {"", "", "", "00/00"},
                       {"", "00", "0/00", "00/00/0/00"}, {"3", "", "", "03/00"}};
  for (const Caso& caso : casi) {
    CampiDocumento campi;
    campi.txtGG = caso.gg;
    campi.txtMM = caso.mm;
    campi.txtAA = caso.aa;
    EXPECT_EQ(DataPubblicazione(campi).toStdString(), caso.data);
  }
}

TEST(SalvaRiferimento, OnlyAReferenceWithoutEmptyFieldsIsFoundAgain) {
  ArchivioDiProva prova;
  prova.Apri("1");
  CampiDocumento& campi = prova.documento.campi;
  const qint16 conVuoti = SalvaRiferimento(prova.documento);
  EXPECT_NE(SalvaRiferimento(prova.documento), conVuoti);
  for (QString* campo : {&campi.txtVolume, &campi.txtSerie, &campi.txtSuppl, &campi.txtSez}) {
    *campo = "x";
  }
  const qint16 pieno = SalvaRiferimento(prova.documento);
  EXPECT_EQ(SalvaRiferimento(prova.documento), pieno);
  EXPECT_EQ(
      RigheTesto(
          prova.stato.DbArchivio,
          QStringLiteral("select * from TabRifBibl where IDRifBibl = %1").arg(conVuoti),
          {"Fascicolo", "Annata", "Volume", "Parte", "Serie", "Supplemento", "Sezione", "Data"}),
      QStringList("3|54|-|I|-|-|-|03/00/2001"));
  // What is typed is a value, whatever it looks like.
  campi.txtFascicolo = "1\" or \"1\"=\"1";
  const qint16 strano = SalvaRiferimento(prova.documento);
  EXPECT_NE(strano, 1);
  EXPECT_EQ(SalvaRiferimento(prova.documento), strano);
  campi.txtCPer = "ZZZZ";
  EXPECT_EQ(SalvaRiferimento(prova.documento), 0);
}

TEST(SalvaRigaDocumento, WhatIsClearedKeepsItsOldValue) {
  ArchivioDiProva prova;
  prova.Apri("1");
  CampiDocumento& campi = prova.documento.campi;
  const auto riga = [&prova](int numero) {
    return RigheTesto(
               prova.stato.DbArchivio,
               QStringLiteral("select * from TabDocumento where IDDocumento = %1").arg(numero),
               {"IDRifBibl", "pagine", "LIN", "lo", "lr", "la", "Bib", "td", "TAbs"})
        .join(u'\n')
        .toStdString();
  };
  campi.txtPagine.clear();
  campi.ComboBib = SegnapostoBib();
  campi.ComboTD = "07|Commento";
  campi.ComboTAbs = "";
  campi.ComboLIN = SegnapostoLIN();
  SalvaRigaDocumento(prova.documento, 5);
  EXPECT_EQ(riga(1), "5|12-34|00|00|00|00|1|07|");
  SalvaRigaDocumento(prova.documento, 0);  // a journal that is not known
  EXPECT_TRUE(riga(1).starts_with("0|")) << riga(1);
  EXPECT_TRUE(riga(2).ends_with("|-|00|-|-|-|||")) << "no other document is touched: " << riga(2);

  prova.documento.SalvaComeNuovo = true;
  SalvaRigaDocumento(prova.documento, 6);
  EXPECT_EQ(riga(3), "6|-|00|00|00|00||07|");

  prova.documento.SalvaComeNuovo = false;
  campi.txtPagine = "1'2";
  SalvaRigaDocumento(prova.documento, 5);
  EXPECT_TRUE(riga(1).starts_with("5|1'2|")) << riga(1);
}

TEST(SalvaResponsabilita, PeopleAreSharedButCollectivesNever) {
  ArchivioDiProva prova;
  prova.Apri("1");
  const auto persone = [&prova] {
    return RigheTesto(prova.stato.DbArchivio, "select * from TabResponsabilita",
                      {"PrimoElemento", "SecondoElemento", "flagCollettivo"});
  };
  const qsizetype prima = persone().size();
  SalvaResponsabilita(prova.documento);
  EXPECT_EQ(persone().size(), prima + 1) << "the collective author is added anew";
  EXPECT_EQ(persone().last().toStdString(), "Gruppo di studio|-|1");
  EXPECT_EQ(RigheTesto(prova.stato.DbArchivio, "select * from LegameDocResp where IDDoc = 1",
                       {"IDResponsabilita", "flagAutore"}),
            (QStringList{"3|0", "1|1"}));
  EXPECT_EQ(prova.stato.RigheResponsabilita[0].IDResponsabilitaRiga, 3);

  for (RigaResponsabilita& riga : prova.stato.RigheResponsabilita) riga.Cancellata = true;
  SalvaResponsabilita(prova.documento);
  EXPECT_TRUE(
      RigheTesto(prova.stato.DbArchivio, "select * from LegameDocResp", {"IDDoc"}).isEmpty());
}

TEST(SalvaTesti, EachKindHasItsOwnNormalisation) {
  ArchivioDiProva prova;
  prova.Apri("1");
  StatoGlobale& stato = prova.stato;
  CampiDocumento& campi = prova.documento.campi;
  const QString grezzo = "a\tb\r\nc\nd..";
  for (QString* testo :
       {&campi.txtTitolo, &campi.txtNota, &stato.TestoRiassunto, &stato.TestoTraduzione,
        &stato.TestoNotaDoc, &stato.TestoNota, &stato.TestoInTemaDi, &stato.TestoEnglishAbstract}) {
    *testo = grezzo;
  }
  stato.TestoSommario.clear();
  const auto testi = [&stato](int documento) {
    return RigheTesto(
        stato.DbArchivio,
        QStringLiteral("select * from LegameDocTesto, TabTesto where LegameDocTesto.IDDoc "
                       "= %1 and LegameDocTesto.IDTesto = TabTesto.IDTesto")
            .arg(documento),
        {"Tipo", "testo"});
  };
  const QStringList attesi = {"0|abc\nd.",      "1|ab\r\nc\nd..",   "3|abc\nd.",
                              "4|abc\nd.",      "5|a\tb\r\nc\nd..", "6|a\tbc\nd..",
                              "7|ab\r\nc\nd..", "8|ab\r\nc\nd.."};
  for (int volta = 0; volta < 2; ++volta) {
    SalvaTesti(prova.documento);
    EXPECT_EQ(testi(1), attesi);
    EXPECT_EQ(RigheTesto(stato.DbArchivio, "select * from TabTesto", {"IDTesto"}).size(), 8)
        << "the texts of the links that went have gone too";
  }
  prova.documento.SalvaComeNuovo = true;
  campi.txtID = "3";
  campi.txtTitolo = ".";
  SalvaTesti(prova.documento);
  EXPECT_EQ(testi(1), attesi) << "a new document leaves the old one alone";
  EXPECT_EQ(testi(3).first(), "0|") << "a text of one dot is an empty row";
}

TEST(SalvaClassi, PairsAreFoundOrMade) {
  ArchivioDiProva prova;
  prova.Apri("1");
  const Database& archivio = prova.stato.DbArchivio;
  const QString s = archivio.OpenRecordset("TabClasse2000-S").Fields("CodiceS").Testo();
  const QString d = archivio.OpenRecordset("TabClasse2000-D").Fields("CodiceD").Testo();
  prova.stato.RigheClasse = {{0, s, d, 0, true, false},
                             {0, s, d, 1, true, false},
                             {0, s, {}, 0, true, false},
                             {0, s, "*dell'arte", 2, true, false},
                             {0, s, "*via", 3, true, true}};
  for (int volta = 0; volta < 2; ++volta) {
    SalvaClassi(prova.documento);
    EXPECT_EQ(RigheTesto(archivio, "select * from TabClasse2000",
                         {"IDClasse2000-S", "IDClasse2000-D", "Classe2000-D", "Check"}),
              (QStringList{"1|1|-|0", "1|1|-|1", "1|0|-|0", "1|0|*dell'arte|2"}));
    EXPECT_EQ(RigheTesto(archivio, "select * from LegameDocClass where IDDoc = 1", {"IDClass"}),
              (QStringList{"1", "2", "3", "4"}));
  }
  prova.stato.RigheClasse = {{0, s, "ZZZZZ", 1, true, false}};
  EXPECT_EQ(NumeroErrore([&] { SalvaClassi(prova.documento); }), 3021);
}

TEST(SalvaClassi, TheOtherSchemeKeepsItsLinks) {
  ArchivioDiProva prova;
  prova.Apri("1");
  const Database& archivio = prova.stato.DbArchivio;
  prova.Metti("LegameDocClass", {{"IDDoc", 1}, {"IDClass", 7}});
  const QString codice = archivio.OpenRecordset("TabClasse1999").Fields("Codice").Testo();
  prova.documento.campi.txtAA = "1999";
  prova.stato.RigheClasse = {{0, codice, {}, 0, true, false},
                             {0, "inesistente", {}, 0, true, false}};
  SalvaClassi(prova.documento);
  EXPECT_EQ(RigheTesto(archivio, "select * from LegameDocClass1999", {"IDDoc", "IDClass"}),
            QStringList("1|1"));
  EXPECT_EQ(RigheTesto(archivio, "select * from LegameDocClass", {"IDClass"}), QStringList("7"));
}

}  // namespace
}  // namespace torvi
