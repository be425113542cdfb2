#include "document/comandi.h"

#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"
#include "document/carica.h"

namespace torvi {
namespace {

qint64 Quanti(const Database& archivio, const QString& tabella) {
  return archivio.OpenRecordset("select count(*) as quanti from " + tabella)
      .Fields("quanti")
      .Intero();
}

QString Titolo(const Database& archivio, int documento) {
  const Recordset riga = archivio.OpenRecordset(
      QStringLiteral("select testo from LegameDocTesto, TabTesto where LegameDocTesto.IDDoc = %1 "
                     "and LegameDocTesto.Tipo = \"0\" and LegameDocTesto.IDTesto = "
                     "TabTesto.IDTesto")
          .arg(documento));
  return riga.Eof() ? QString() : riga.Fields("testo").Testo();
}

constexpr const char* kDomandaNew = "Vuoi salvare con lo stesso numero di documento?";

TEST(Comandi, DuplicateLeavesTheSourceAndTurnsToTheCopy) {
  ArchivioDiProva prova;
  prova.Apri("1");
  const qint64 legami = Quanti(prova.stato.DbArchivio, "LegameDocResp where IDDoc = 1");
  ComandoDuplica(prova.documento);
  EXPECT_EQ(prova.documento.campi.txtID, "3");
  EXPECT_FALSE(prova.stato.DocumentoNuovo);
  prova.documento.campi.txtTitolo = "copia";
  ComandoSalva(prova.documento);
  EXPECT_EQ(prova.documento.fuoco, "txtID");
  EXPECT_EQ(Titolo(prova.stato.DbArchivio, 1), "testo 0");
  EXPECT_EQ(Titolo(prova.stato.DbArchivio, 3), "copia");
  EXPECT_EQ(Quanti(prova.stato.DbArchivio, "TabDocumento"), 3);
  for (const char* dove : {"LegameDocResp where IDDoc = 1", "LegameDocResp where IDDoc = 3"}) {
    EXPECT_EQ(Quanti(prova.stato.DbArchivio, dove), legami);
  }
}

// What fails before there is a copy leaves the document what it was; later, the copy is what stands
// on screen, to be mended and saved.
TEST(Comandi, AFailedDuplicateIsNoOtherDocument) {
  struct Caso {
    QString CampiDocumento::*campo;
    const char* txtID;
  };
  for (const Caso& caso : {Caso{&CampiDocumento::txtSez, "1"}, {&CampiDocumento::txtAA, "3"}}) {
    ArchivioDiProva prova;
    prova.Apri("1");
    prova.stato.RigheClasse.resize(1);
    prova.stato.RigheClasse[0].Sistematico = "X'X";
    prova.documento.campi.*caso.campo = caso.txtID[0] == '1' ? "\"" : "2001";
    EXPECT_THROW(ComandoDuplica(prova.documento), ErroreEsecuzione);
    EXPECT_EQ(prova.documento.campi.txtID, caso.txtID);
    prova.documento.campi.*caso.campo = "2001";
    prova.stato.RigheClasse.clear();
    ComandoSalva(prova.documento);
    EXPECT_EQ(Quanti(prova.stato.DbArchivio, "TabDocumento"), caso.txtID[0] == '1' ? 2 : 3);
    EXPECT_EQ(Titolo(prova.stato.DbArchivio, QString(caso.txtID).toInt()), "testo 0");
  }
}

TEST(Comandi, NewSavesAsTheAnswerTellsAndClearsInAnyCase) {
  struct Caso {
    Risposta risposta;
    const char* titoloPrimo;  // of document 1 afterwards
    const char* titoloTerzo;
    const char* numero;
  };
  const Caso casi[] = {{Risposta::Si, "cambiato", "", "3"},
                       {Risposta::No, "testo 0", "cambiato", "4"},
                       {Risposta::Annulla, "testo 0", "", "3"}};
  for (const Caso& caso : casi) {
    ArchivioDiProva prova;
    prova.Apri("1");
    prova.documento.campi.txtTitolo = "cambiato";
    prova.dialoghi.AttendeDomanda(kDomandaNew, "Salvataggio", Pulsanti::SiNoAnnulla, caso.risposta);
    ComandoNew(prova.documento);
    EXPECT_EQ(Titolo(prova.stato.DbArchivio, 1), caso.titoloPrimo);
    EXPECT_EQ(Titolo(prova.stato.DbArchivio, 3), caso.titoloTerzo);
    EXPECT_EQ(prova.documento.campi.txtID, caso.numero);
    EXPECT_TRUE(prova.stato.DocumentoNuovo);
    EXPECT_TRUE(prova.documento.campi.txtTitolo.isEmpty() && prova.stato.TestoRiassunto.isEmpty());
    EXPECT_TRUE(prova.documento.campi.icone.at(1)) << "the icons are left as they were";
    EXPECT_EQ(prova.documento.campi.ComboTD, SegnapostoTD());
  }
}

TEST(Comandi, NewOnANewDocumentDropsItUnasked) {
  ArchivioDiProva prova;
  prova.Apri({});
  prova.documento.campi.txtTitolo = "perso";
  ComandoNew(prova.documento);
  EXPECT_TRUE(prova.dialoghi.Parole().isEmpty());
  EXPECT_TRUE(prova.documento.campi.txtTitolo.isEmpty() && prova.documento.SalvaComeNuovo);
  EXPECT_EQ(Quanti(prova.stato.DbArchivio, "TabDocumento"), 2);
}

TEST(Comandi, LeavingForgetsTheSearchAndStaysWithoutASave) {
  ArchivioDiProva prova;
  prova.Apri("1");
  prova.stato.ModoRicerca = true;
  prova.stato.ListaRicerca = {1};
  prova.documento.campi.txtCPer.clear();
  EXPECT_FALSE(ComandoEsci(prova.documento));
  EXPECT_TRUE(prova.stato.ListaRicerca.empty() && prova.stato.ModoRicerca);
  prova.documento.campi.txtCPer = "ZZZZ";
  EXPECT_TRUE(ComandoEsci(prova.documento));
}

TEST(Comandi, RowsAreMarkedAfterAQuestion) {
  ArchivioDiProva prova;
  prova.Apri("1");
  ComandoElimina(prova.documento, Lista::Responsabilita, {});
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "Nessuna selezione effettuata");
  for (const Risposta risposta : {Risposta::No, Risposta::Si}) {
    prova.dialoghi.AttendeDomanda("Confermi cancellazione?", "Attenzione!", Pulsanti::SiNo,
                                  risposta);
    ComandoElimina(prova.documento, Lista::Responsabilita, {1});
    const bool segnata = risposta == Risposta::Si;
    EXPECT_EQ(prova.stato.RigheResponsabilita[1].Cancellata, segnata);
    EXPECT_EQ(prova.documento.campi.lstResponsabilita[1].startsWith("DEL--"), segnata);
    EXPECT_FALSE(prova.stato.RigheResponsabilita[0].Cancellata);
  }
}

TEST(Comandi, ASourceGoesIntoTheNoteOfNotesAndComments) {
  struct Caso {
    const char* tipo;
    const char* nota;
    const char* attesa;
  };
  const Caso casi[] = {{"03|Nota", "", "Nota a art. 1 l."},
                       {"07|Commento", "", "Commento a art. 1 l."},
                       {"01|Articolo", "", ""},
                       {"01|Articolo", "prima", "prima; art. 1 l."}};
  for (const Caso& caso : casi) {
    ArchivioDiProva prova;
    prova.documento.campi.ComboTD = caso.tipo;
    prova.documento.campi.txtNota = caso.nota;
    prova.stato.RigheFonte.resize(1);
    prova.stato.RigheFonte[0].Testo = "art. 1 l.";
    ComandoFonteInNota(prova.documento);
    EXPECT_EQ(prova.documento.campi.txtNota, caso.nota) << "nothing is selected";
    prova.documento.IndiceFonte = 0;
    ComandoFonteInNota(prova.documento);
    EXPECT_EQ(prova.documento.campi.txtNota, caso.attesa);
  }
}

}  // namespace
}  // namespace torvi
