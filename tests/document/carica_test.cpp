#include "document/carica.h"

#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"
#include "document/carica_parti.h"
#include "document/comandi.h"
#include "document/contenuto.h"

namespace torvi {
namespace {

std::string Primo(const Database& archivio, const char* istruzione, const char* colonna) {
  return archivio.OpenRecordset(istruzione).Fields(colonna).Testo().toStdString();
}

TEST(Carica, ADocumentShowsInEveryField) {
  ArchivioDiProva prova;
  prova.Apri("1");
  const CampiDocumento& campi = prova.documento.campi;
  const Database& archivio = prova.stato.DbArchivio;
  EXPECT_EQ(campi.txtCPer.toStdString(), Primo(archivio, "select CPER from TabRivista", "CPER"));
  EXPECT_TRUE(campi.txtRivista.endsWith(u')'));
  const QStringList valori = {campi.txtFascicolo, campi.txtAnnata, campi.txtVolume,
                              campi.txtParte,     campi.txtSerie,  campi.txtSuppl,
                              campi.txtSez,       campi.txtPagine, campi.txtGG,
                              campi.txtMM,        campi.txtAA,     campi.txtAnnoPr};
  EXPECT_EQ(valori.join(u'|').toStdString(), "3|54||I||||12-34|03||2001|2001");
  EXPECT_EQ(campi.ComboLIN.section(u'|', 0, 0), "00");
  EXPECT_EQ(campi.ComboTD.section(u'|', 0, 0), "03");
  EXPECT_EQ(campi.ComboTAbs.section(u'|', 0, 0), "500");
  EXPECT_EQ(campi.ComboBib, prova.documento.codici.ComboBib.at(1));
  EXPECT_TRUE(prova.documento.comandiVisibili);
}

TEST(Carica, PeopleComeInTheOrderOfTheirLinks) {
  ArchivioDiProva prova;
  prova.Apri("1");
  EXPECT_EQ(prova.documento.campi.lstResponsabilita,
            (QStringList{"C - Gruppo di studio", "A - D'Amico, Lucia"}));
  ASSERT_EQ(prova.stato.RigheResponsabilita.size(), 2U);
  EXPECT_EQ(prova.stato.RigheResponsabilita[0].SecondoElemento, QString());
  prova.Metti("LegameDocResp", {{"IDDoc", 1}, {"IDResponsabilita", 999}, {"flagAutore", true}});
  EXPECT_EQ(NumeroErrore([&] { CaricaResponsabilita(prova.documento); }), 3021);
}

TEST(Carica, EveryTextGoesToItsPlaceAndShowsOnItsButton) {
  ArchivioDiProva prova;
  prova.Apri("1");
  const StatoGlobale& stato = prova.stato;
  const CampiDocumento& campi = prova.documento.campi;
  const QStringList testi = {
      campi.txtTitolo,       stato.TestoRiassunto, stato.TestoSommario,
      stato.TestoTraduzione, campi.txtNota,        stato.TestoNotaDoc,
      stato.TestoNota,       stato.TestoInTemaDi,  stato.TestoEnglishAbstract};
  for (qsizetype tipo = 0; tipo < testi.size(); ++tipo) {
    EXPECT_EQ(testi[tipo], QStringLiteral("testo %1").arg(tipo));
    EXPECT_EQ(campi.icone.at(tipo), tipo != 0 && tipo != 4) << tipo;
  }
  prova.Metti("LegameDocTesto", {{"IDDoc", 1}, {"IDTesto", 999}, {"Tipo", "1"}});
  CaricaTesti(prova.documento);
  EXPECT_EQ(prova.documento.testiMancanti, QStringList("riassunto"));
}

TEST(Carica, ANewerLoadEmptiesWhatTheOlderShowed) {
  ArchivioDiProva prova;
  prova.Apri("1");
  SvuotaDocumento(prova.documento);
  EXPECT_TRUE(prova.documento.campi.icone.at(1)) << "icons stay until the next load";
  prova.documento.campi.txtID = "2";
  CaricaDocumento(prova.documento);
  const CampiDocumento& campi = prova.documento.campi;
  EXPECT_EQ(campi.icone, (std::array<bool, 9>{}));
  EXPECT_TRUE(prova.stato.TestoRiassunto.isEmpty());
  EXPECT_TRUE(campi.lstResponsabilita.isEmpty());
}

TEST(Carica, ADocumentWithoutDateOrCodes) {
  ArchivioDiProva prova;
  prova.Apri("2");
  const CampiDocumento& campi = prova.documento.campi;
  EXPECT_EQ(QStringList({campi.txtGG, campi.txtMM, campi.txtAA}).join(u'|').toStdString(),
            "|00|0/00");
  EXPECT_EQ(campi.ComboBib, prova.documento.codici.ComboBib.first()) << "the value of nothing is 0";
  EXPECT_EQ(campi.ComboTD, "Tipo documento");
  EXPECT_EQ(campi.ComboTAbs, "Tipo abstract");
  EXPECT_TRUE(campi.txtCPer.isEmpty()) << "its journal is unknown";
}

TEST(Carica, DatesInAllTheirShapes) {
  struct Caso {
    Campo data;
    const char* campi;
  };
  const Caso casi[] = {{"03/02/2001", "03|02|2001"},
                       {"00/02/2001", "|02|2001"},
                       {"00/00/2001", "||2001"},
                       {"03/00/1999", "03||1999"},
                       {Campo(), "||"},
                       {"", "||"},
                       {"03/02", "03|02|3/02"}};
  for (const Caso& caso : casi) {
    ArchivioDiProva prova;
    Recordset riferimenti = prova.stato.DbArchivio.OpenRecordset("TabRifBibl");
    riferimenti.Edit();
    riferimenti.Assegna("Data", caso.data);
    riferimenti.Update();
    prova.Apri("1");
    const CampiDocumento& campi = prova.documento.campi;
    EXPECT_EQ(QStringList({campi.txtGG, campi.txtMM, campi.txtAA}).join(u'|').toStdString(),
              caso.campi);
  }
}

TEST(Carica, PairsByTheSchemeOfTheYear) {
  ArchivioDiProva prova;
  const Database& archivio = prova.stato.DbArchivio;
  const std::string s =
      Primo(archivio, "select CodiceS from [TabClasse2000-S] where IDClasseS = 3", "CodiceS");
  const std::string d =
      Primo(archivio, "select CodiceD from [TabClasse2000-D] where IDClasseD = 4", "CodiceD");
  const std::initializer_list<std::tuple<int, Campo, Campo, std::string>> coppie = {
      {4, Campo(), "0", "0 - " + s + "; " + d},
      {0, Campo(), "0", "0 - " + s},
      {4, Campo(), "1", "1 - " + s + "; " + d},
      {0, "*dell'arte", "2", "2 - " + s + "; *dell'arte"},
      {0, "*altro", "3", "3 - " + s + "; *altro"}};
  QStringList attese;
  for (const auto& [descrittore, libero, check, riga] : coppie) {
    const qint64 classe = prova.Metti("TabClasse2000", {{"IDClasse2000-S", 3},
                                                        {"IDClasse2000-D", descrittore},
                                                        {"Classe2000-D", libero},
                                                        {"Check", check}});
    prova.Metti("LegameDocClass", {{"IDDoc", 1}, {"IDClass", classe}});
    attese += QString::fromStdString(riga);
  }
  prova.Metti("LegameDocClass1999", {{"IDDoc", 1}, {"IDClass", 5}});
  prova.Apri("1");
  EXPECT_EQ(prova.documento.campi.lstClassificazione, attese);

  prova.documento.campi.txtAA = "1999";
  CaricaClassi(prova.documento);
  const std::string codice =
      Primo(archivio, "select Codice from TabClasse1999 where IDClasse1999 = 5", "Codice");
  EXPECT_EQ(prova.documento.campi.lstClassificazione,
            QStringList(QString::fromStdString("0 - " + codice)));
}

TEST(Carica, NewDocumentsAreNumberedBehindTheLast) {
  ArchivioDiProva prova;
  prova.Apri({});
  EXPECT_EQ(prova.documento.campi.txtID, "3");
  EXPECT_FALSE(prova.documento.comandiVisibili);
  EXPECT_EQ(prova.documento.campi.ComboLIN, prova.documento.codici.ComboLIN.first());
  EXPECT_EQ(prova.documento.campi.ComboTD, "Tipo documento");

  prova.stato.DbArchivio.Execute("delete from TabDocumento");
  Documento vuoto(prova.stato, prova.dialoghi);
  CaricaForma(vuoto);
  EXPECT_EQ(vuoto.campi.txtID, " 1");
}

// Whatever part of it fails: no box, nothing half loaded, nothing that a save would write, and one
// step further the next document is there whole.
TEST(Carica, ADocumentThatIsNotWholeIsNotShownAndNeverSaved) {
  struct Caso {
    const char* tabella;
    std::initializer_list<std::pair<const char*, Campo>> legame;
  };
  const Caso casi[] = {
      {"LegameDocResp", {{"IDDoc", 1}, {"IDResponsabilita", 999}, {"flagAutore", true}}},
      {"LegameDocClass", {{"IDDoc", 1}, {"IDClass", 1}}},
      {"LegameDocFonte", {{"IDDoc", 1}, {"IDFnt", 1}}}};
  for (const Caso& caso : casi) {
    ArchivioDiProva prova;
    prova.Metti("TabClasse2000", {{"IDClasse2000", 1}, {"IDClasse2000-S", 9999}, {"Check", "0"}});
    prova.Metti("TabFonte", {{"IDFonte", 1}, {"TP", "LIO"}, {"fonte", 9999}});
    prova.Metti(caso.tabella, caso.legame);
    const QStringList prima = RigheTesto(prova.stato.DbArchivio, "TabDocumento");
    prova.Apri("1");
    EXPECT_TRUE(prova.dialoghi.Parole().isEmpty()) << caso.tabella;
    const CampiDocumento& campi = prova.documento.campi;
    EXPECT_EQ(campi.txtID + campi.txtCPer + campi.txtTitolo + campi.txtAA + campi.txtPagine, "1");
    EXPECT_TRUE(campi.lstResponsabilita.isEmpty() && prova.stato.RigheResponsabilita.empty());
    EXPECT_EQ(campi.ComboTD, SegnapostoTD());
    EXPECT_TRUE(DescriviStato(prova.documento, false)
                    .startsWith("Documento 1: non caricato. Errore di run-time '3021': "));
    prova.documento.campi.txtCPer = "ZZZZ";
    EXPECT_FALSE(ComandoSalva(prova.documento) || ComandoDuplica(prova.documento));
    EXPECT_TRUE(prova.dialoghi.UltimoMessaggio().startsWith(
        "Il documento 1 non è stato caricato: non si può modificare né salvare. "));
    EXPECT_EQ(RigheTesto(prova.stato.DbArchivio, "TabDocumento"), prima);
    ComandoSposta(prova.documento, Verso::Avanti);
    EXPECT_TRUE(prova.documento.guasto.isEmpty() && campi.txtID == "2");
    EXPECT_TRUE(ErroreDi([&] {
                  ComandoSposta(prova.documento, Verso::Indietro);
                }).startsWith("3021 il documento 1 non è stato caricato. "));
    EXPECT_TRUE(!prova.documento.guasto.isEmpty() && campi.txtID == "1");
  }
  ArchivioDiProva prova;
  prova.stato.DbArchivio.Close();
  prova.Apri("1");
  EXPECT_TRUE(prova.dialoghi.Parole().isEmpty());
}

TEST(Carica, ANewDocumentEmptiesEveryField) {
  ArchivioDiProva prova;
  prova.Apri("1");
  CampiDocumento& campi = prova.documento.campi;
  for (QString* campo :
       {&campi.txtCPer, &campi.txtRivista, &campi.txtParte, &campi.txtSerie, &campi.txtVolume,
        &campi.txtAnnata, &campi.txtPagine, &campi.txtTitolo, &campi.txtNota, &campi.txtSuppl,
        &campi.txtAA, &campi.txtGG, &campi.txtMM, &campi.txtFascicolo, &campi.txtSez}) {
    *campo = "x";
    SvuotaDocumento(prova.documento);
    EXPECT_EQ(*campo, "");
  }
}

}  // namespace
}  // namespace torvi
