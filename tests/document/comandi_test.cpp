#include "document/comandi.h"

#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"
#include "document/carica.h"
#include "document/contenuto.h"

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

// What is refused or fails before there is a copy leaves the document what it was; later, the copy
// is what stands on screen, to be mended and saved.
TEST(Comandi, AFailedDuplicateIsNoOtherDocument) {
  for (const char* numero : {"1", "3"}) {
    ArchivioDiProva prova;
    prova.Apri("1");
    const QString periodico = prova.documento.campi.txtCPer;
    if (*numero == '1') {
      prova.documento.campi.txtCPer.clear();
      EXPECT_FALSE(ComandoDuplica(prova.documento));
    } else {
      prova.stato.RigheClasse.resize(1);
      prova.stato.RigheClasse[0].Sistematico = "X'X";
      EXPECT_THROW(ComandoDuplica(prova.documento), ErroreEsecuzione);
    }
    EXPECT_EQ(prova.documento.campi.txtID, numero);
    prova.documento.campi.txtCPer = periodico;
    prova.stato.RigheClasse.clear();
    ComandoSalva(prova.documento);
    EXPECT_EQ(Quanti(prova.stato.DbArchivio, "TabDocumento"), *numero == '1' ? 2 : 3);
    EXPECT_EQ(Titolo(prova.stato.DbArchivio, QString(numero).toInt()), "testo 0");
  }
}

TEST(Comandi, NewInAnArchiveWithoutDocumentsLeavesEverythingAsItWas) {
  ArchivioDiProva prova;
  prova.stato.DbArchivio.Execute("delete from TabDocumento");
  prova.Apri({});
  prova.documento.campi.ComboTD = "03|Nota";
  prova.stato.RigheResponsabilita.resize(1);
  const ContenutoDocumento prima = Contenuto(prova.documento);
  EXPECT_EQ(NumeroErrore([&] { ComandoNew(prova.documento); }), 3021);
  EXPECT_TRUE(Contenuto(prova.documento) == prima);
}

// The number in the field: what is none, or of no document, writes nothing; another document is
// written over only where the operator says so.
TEST(Comandi, TheNumberThatWasTypedIsNeverTakenUnasked) {
  const QString altro = "Il numero è stato cambiato da 1 a 2. Salvare al posto del documento 2?";
  struct Caso {
    const char* numero;
    int errore;
    bool scrive;
  };
  for (const Caso& caso : {Caso{"1 or 1", 13, false},
                           {"2-1", 13, false},
                           {"", 13, false},
                           {"9", 3021, false},
                           {"2", 0, false},
                           {"2", 0, true}}) {
    ArchivioDiProva prova;
    prova.Apri("1");
    const QStringList riferimenti = RigheTesto(prova.stato.DbArchivio, "TabRifBibl");
    prova.documento.campi.txtID = caso.numero;
    prova.documento.campi.txtPagine = "99' or '1'='1";
    if (caso.errore == 0) {
      prova.dialoghi.AttendeDomanda(altro, "Salvataggio", Pulsanti::SiNo,
                                    caso.scrive ? Risposta::Si : Risposta::No);
    }
    EXPECT_EQ(NumeroErrore([&] { ComandoSalva(prova.documento); }), caso.errore) << caso.numero;
    EXPECT_EQ(RigheTesto(prova.stato.DbArchivio, "TabRifBibl") == riferimenti, !caso.scrive);
    EXPECT_EQ(RigheTesto(prova.stato.DbArchivio, "select * from TabDocumento order by IDDocumento",
                         {"pagine"})
                  .join('|'),
              caso.scrive ? "12-34|99' or '1'='1" : "12-34|-");
  }
}

// Two windows on one archive.
TEST(Comandi, WhatAnotherWindowWroteIsNotLostUnasked) {
  ArchivioDiProva prova;
  prova.Apri("1");
  StatoGlobale altroStato = prova.stato;
  Documento altro(altroStato, prova.dialoghi);
  CaricaForma(altro);
  altro.campi.txtTitolo = "dell'altra";
  altroStato.RigheResponsabilita.pop_back();
  EXPECT_TRUE(ComandoSalva(altro) && ComandoSalva(altro)) << "its own saves are no surprise";
  const auto domanda = [&](Risposta risposta) {
    prova.dialoghi.AttendeDomanda(
        "Il documento 1 è stato modificato nell'archivio da quando è stato caricato "
        "(responsabilità, testi). Salvare lo stesso quello che sta "
        "nella scheda?",
        "Salvataggio", Pulsanti::SiNo, risposta);
  };
  domanda(Risposta::No);
  EXPECT_FALSE(ComandoSalva(prova.documento));
  EXPECT_EQ(Titolo(prova.stato.DbArchivio, 1), "dell'altra");
  domanda(Risposta::Si);
  EXPECT_TRUE(ComandoSalva(prova.documento));
  EXPECT_EQ(Titolo(prova.stato.DbArchivio, 1), "testo 0");
}

TEST(Comandi, ANewDocumentNeverGetsANumberThatIsAnothers) {
  ArchivioDiProva prova;
  prova.Apri({});
  prova.documento.campi.txtCPer = "ZZZZ";
  prova.documento.campi.txtTitolo = "secondo";
  prova.Metti("TabDocumento", {{"IDRifBibl", 1}});
  const auto domanda = [&](Risposta risposta) {
    prova.dialoghi.AttendeDomanda(
        "Il numero 3 è già di un altro documento. Salvare con il numero 4?", "Salvataggio",
        Pulsanti::SiNo, risposta);
  };
  domanda(Risposta::No);
  EXPECT_FALSE(ComandoSalva(prova.documento));
  EXPECT_EQ(Quanti(prova.stato.DbArchivio, "TabDocumento"), 3);
  domanda(Risposta::Si);
  EXPECT_TRUE(ComandoSalva(prova.documento));
  EXPECT_EQ(Titolo(prova.stato.DbArchivio, 3), "");
  EXPECT_EQ(Titolo(prova.stato.DbArchivio, 4), "secondo");
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
