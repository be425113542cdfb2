#include "document/frmDocumento.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QSignalSpy>

#include "comune/tastiera.h"
#include "document/archivio_di_prova.h"
#include "shell/finestra_testo.h"

namespace torvi {
namespace {

class FormaDocumento : public testing::Test {
 protected:
  void Apri(const QString& numero) {
    prova.stato.DocumentoNuovo = numero.isEmpty();
    prova.stato.IDDocumentoScelto = numero;
    forma = std::make_unique<frmDocumento>(prova.stato, prova.dialoghi, dizionari);
    forma->show();
    Attiva();
  }
  void Attiva() const {
    forma->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(forma.get()));
  }
  // Keys that open forms; afterwards the document has the focus again.
  void BattiConForme(const QString& copione, std::deque<Passo> passi) const {
    Operatore::Esegue([&copione] { Batti(copione); }, std::move(passi));
    Attiva();
  }
  void Vai(const char* controllo) const { Trova<QWidget>(*forma, controllo).setFocus(); }
  [[nodiscard]] QString Riga(const char* campo) const {
    return Trova<QLineEdit>(*forma, campo).text();
  }
  [[nodiscard]] QString Testo(const char* campo) const {
    return TestoMostrato(Trova<QPlainTextEdit>(*forma, campo));
  }
  [[nodiscard]] QString Mostrato(const char* campo) const {
    const auto* riga = forma->findChild<QLineEdit*>(campo);
    return riga != nullptr ? riga->text() : Testo(campo);
  }
  void Incolla(const char* campo, const QString& testo) const {
    QGuiApplication::clipboard()->setText(testo);
    Vai(campo);
    Batti("{Ctrl+A}{Ctrl+V}");
  }
  [[nodiscard]] QString Voce(const char* combo) const {
    return Trova<QComboBox>(*forma, combo).currentText();
  }
  [[nodiscard]] std::string Linee(const char* lista) const {
    return torvi::Linee(Trova<QListWidget>(*forma, lista)).join('\n').toStdString();
  }

  ArchivioDiProva prova;
  Dizionari dizionari{prova.cartella.Percorso()};
  std::unique_ptr<frmDocumento> forma;
};

TEST_F(FormaDocumento, ShowsTheChosenDocument) {
  Apri("1");
  QStringList valori;
  for (const char* campo :
       {"txtID", "txtAnnoPr", "txtFascicolo", "txtAnnata", "txtParte", "txtGG", "txtMM", "txtAA",
        "txtPagine", "txtSuppl", "txtVolume", "txtSerie", "txtSez"}) {
    valori += Riga(campo);
  }
  EXPECT_EQ(valori.join('|').toStdString(), "1|2001|3|54|I|03||2001|12-34||||");
  EXPECT_EQ(Testo("txtTitolo"), "testo 0");
  EXPECT_EQ(Testo("txtNota"), "testo 4");
  EXPECT_EQ(Voce("ComboTD").left(3), "03|");
  EXPECT_EQ(Voce("ComboTAbs").left(4), "500|");
  EXPECT_EQ(Linee("lstResponsabilita"), "C - Gruppo di studio\nA - D'Amico, Lucia");
  EXPECT_TRUE(Trova<QPushButton>(*forma, "cmdSalva").isVisible());
  EXPECT_EQ(forma->Stato(), "Documento 1: esistente, non modificato");
}

// Whatever is pasted stays on screen and comes back from the archive.
TEST_F(FormaDocumento, KeepsAwkwardTextsInEveryField) {
  Apri("1");
  const QStringList testi = {"l'uno *?[ è €", "\"due\"", "\U0001F600", "a\u00A0b\t.",
                             QString(10000, 'x')};
  for (const QString& testo : testi) {
    for (const char* campo : {"txtFascicolo", "txtAnnata", "txtVolume", "txtParte", "txtSerie",
                              "txtSuppl", "txtSez", "txtPagine", "txtTitolo", "txtNota"}) {
      Incolla(campo, testo);
      Batti("{F4}");
      EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "Documento salvato!") << campo;
      EXPECT_TRUE(Mostrato(campo) == testo) << campo;
      Batti("{F6}{F5}");
      QString riletto = testo;
      if (campo[3] == 'T' || campo[3] == 'N') riletto.remove("\t.");
      EXPECT_TRUE(Mostrato(campo) == riletto) << campo << " " << testo.left(20).toStdString();
    }
  }
}

TEST_F(FormaDocumento, PastedLinesBecomeOneInAFieldOfOneLine) {
  Apri("1");
  Incolla("txtSez", "uno\r\ndue\ntre");
  EXPECT_EQ(Riga("txtSez"), "uno due tre");
  for (const char* campo : {"txtTitolo", "txtNota"}) {
    Incolla(campo, "uno\r\ndue\ntre");
    Batti("{Return}quattro");
    EXPECT_EQ(Testo(campo), "uno due tre quattro");
  }
}

TEST_F(FormaDocumento, FunctionKeysReachTheirCommands) {
  Apri({});
  EXPECT_FALSE(Trova<QPushButton>(*forma, "cmdSalva").isVisible());
  EXPECT_EQ(forma->Stato(), "Documento 3: nuovo, non modificato");
  Batti("{F4}");
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "periodico non ancora immesso");
  BattiConForme("{F1}", {Forma("Help su tasti funzione", "{Esc}")});
  BattiConForme("{F7}", {Forma("Responsabilità", "Rossi{Tab} Mario {Tab}{Tab}{Return}")});
  EXPECT_EQ(Linee("lstResponsabilita"), "A - Rossi, Mario");
  Batti("{F8}");
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(),
            "Per questa operazione è necessario riempire il campo \"Anno\"!");
  EXPECT_TRUE(Trova<QLineEdit>(*forma, "txtAA").hasFocus());
  Batti("1999");
  BattiConForme("{F8}", {Forma("Classifcazione ante 2000", "{Esc}")});
  BattiConForme("{F10}", {Forma("Testo riassunto", "Un testo{Alt+E}")});
  BattiConForme("{F11}", {Forma("Testo sommario", "{Esc}")});
  EXPECT_EQ(prova.stato.TestoRiassunto, "Un testo");
  EXPECT_EQ(forma->Stato(), "Documento 3: nuovo, modificato");
  for (const char* controllo : {"cmdNew", "cmdAbbandona", "txtRivista", "lstFonte"}) {
    prova.dialoghi.Messaggio("prima", {}, Icona::Nessuna);
    Vai(controllo);
    Batti("{Ctrl+F4}{Ctrl+F6}{Shift+F3}{Alt+F12}");
    EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "prima") << controllo;
    Vai(controllo);
    Batti("{F4}");
    EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "periodico non ancora immesso") << controllo;
  }
  Vai("txtAA");
  const QSignalSpy scaricata(forma.get(), &frmDocumento::Scaricata);
  Batti("{F3}");
  EXPECT_EQ(scaricata.count(), 1);
  EXPECT_FALSE(forma->isVisible());
}

TEST_F(FormaDocumento, ChecksTheJournalOnLeavingIt) {
  Apri({});
  Vai("txtCPer");
  Batti("zz{Tab}");
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "Codice periodico errato!");
  EXPECT_EQ(prova.dialoghi.Parole().last().titolo, "Attenzione!");
  EXPECT_TRUE(Trova<QLineEdit>(*forma, "txtCPer").hasFocus());
  // Keys leave the field too; who insists has been warned.
  for (const char* tasto :
       {"{F2}", "{F4}", "{F5}", "{F6}", "{F7}", "{F8}", "{F9}", "{F10}", "{F11}", "{F12}"}) {
    prova.dialoghi.Messaggio("prima", {}, Icona::Nessuna);
    Batti(QLatin1String("{Ctrl+A}zz") + QLatin1String(tasto));
    EXPECT_EQ(prova.dialoghi.Messaggi().mid(prova.dialoghi.Messaggi().size() - 2),
              QStringList({"prima", "Codice periodico errato!"}))
        << tasto;
  }
  EXPECT_EQ(RigheTesto(prova.stato.DbArchivio, "TabDocumento", {"IDDocumento"}).size(), 2);
  Batti("{F4}");
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "Documento salvato!");
  EXPECT_EQ(RigheTesto(prova.stato.DbArchivio, "TabDocumento", {"IDRifBibl"}).last(), "0");
  const qsizetype prima = prova.dialoghi.Messaggi().size();
  Vai("txtCPer");
  // A command that the field is left for does not run; abandoning needs no check.
  prova.stato.DocumentoNuovo = false;
  Clic(*forma, "cmdEsci");
  EXPECT_TRUE(forma->isVisible());
  EXPECT_EQ(prova.dialoghi.Messaggi().mid(prima), QStringList("Codice periodico errato!"));
  Clic(*forma, "cmdAbbandona");
  EXPECT_FALSE(forma->isVisible());
  EXPECT_EQ(prova.dialoghi.Messaggi().size(), prima + 1);
}

TEST_F(FormaDocumento, CombosTakeAnyPartOfAnItem) {
  Apri("1");
  for (const auto& [battuto, atteso] :
       {std::pair{"inglese{Esc}{Tab}", "ingl"}, {"qqqq{Tab}", "ingl"}, {"{Del}{Tab}", "Lingua"}}) {
    Vai("ComboLIN");
    QCoreApplication::processEvents();
    Batti(battuto);
    EXPECT_TRUE(Voce("ComboLIN").contains(atteso))
        << battuto << " " << Voce("ComboLIN").toStdString();
  }
  // A command does not wait until the combo is left.
  Vai("ComboLIN");
  Batti("rancese{Esc}{F4}");
  EXPECT_TRUE(Voce("ComboLIN").contains("franc"));
  EXPECT_EQ(RigheTesto(prova.stato.DbArchivio, "TabDocumento", {"LIN"}).constFirst(),
            Voce("ComboLIN").left(2));
}

TEST_F(FormaDocumento, ListsSelectMarkAndEdit) {
  Apri("1");
  Vai("lstResponsabilita");
  Batti("{Down}{Tab}{Tab}");
  EXPECT_TRUE(Trova<QPushButton>(*forma, "cmdResponsabilitaM").hasFocus());
  BattiConForme(" ", {Forma("Responsabilità", "{Ctrl+A}De Amicis{Tab}{Tab}{Tab}{Return}")});
  EXPECT_EQ(Linee("lstResponsabilita"), "C - Gruppo di studio\nA - De Amicis, Lucia");
  prova.dialoghi.AttendeDomanda("Confermi cancellazione?", "Attenzione!", Pulsanti::SiNo,
                                Risposta::Si);
  Vai("cmdResponsabilitaD");
  Batti(" ");
  EXPECT_EQ(Linee("lstResponsabilita"), "C - Gruppo di studio\nDEL--A - De Amicis, Lucia");
}

// The commands of a list work on the line that the operator sees selected.
TEST_F(FormaDocumento, AListTellsWhatItsCommandsWorkOn) {
  for (const int chi : {1, 2}) {
    Aggiungi(prova.stato.DbArchivio, "LegameDocResp",
             {{"IDDoc", 2}, {"IDResponsabilita", chi}, {"flagAutore", true}});
  }
  Apri("1");
  auto& lista = Trova<QListWidget>(*forma, "lstResponsabilita");
  const auto clicca = [&lista](int riga) {
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                      lista.visualItemRect(lista.item(riga)).center());
  };
  const auto matita = [this](const QString& nome) {
    Vai("cmdResponsabilitaM");
    BattiConForme(" ", {[nome](QWidget& modale) {
                    EXPECT_EQ(Trova<QLineEdit>(modale, "txtElementoPr").text(), nome);
                    Batti("{Esc}");
                  }});
  };
  clicca(1);
  matita("D'Amico");
  // As many lines, and none of them selected; then the same place again.
  Batti("{F6}");
  EXPECT_TRUE(lista.selectedItems().isEmpty());
  matita("");
  clicca(1);
  matita("Gruppo di studio");
  BattiConForme("{F7}", {Forma("Responsabilità", "Nuovo{Tab}{Tab}{Tab}{Return}")});
  EXPECT_EQ(lista.count(), 3);
  clicca(2);
  BattiConForme("{F7}", {Forma("Responsabilità", "{Esc}")});
  matita("");
  Vai("txtNota");
  Batti("{Tab}");
  EXPECT_TRUE(lista.hasFocus());
  matita("D'Amico");
  Vai("lstResponsabilita");
  Batti("{Down}");
  matita("Gruppo di studio");
}

TEST_F(FormaDocumento, KeysGoOnAndBack) {
  Aggiungi(prova.stato.DbArchivio, "TabDocumento", {{"LIN", "00"}});
  Apri("1");
  for (const auto& [tasto, numero] : {std::pair{"{F6}", "2"}, {"{F5}", "1"}, {"{F5}", "3"}}) {
    Batti(tasto);
    EXPECT_EQ(Riga("txtID"), numero) << tasto;
    EXPECT_TRUE(forma->Stato().endsWith(", non modificato")) << tasto;
  }
}

// A text of its own turns the icon of its own button.
TEST_F(FormaDocumento, EachButtonShowsThatItsTextExists) {
  constexpr std::array kPulsanti = {"cmdRiassunto",       "cmdSommario",   "cmdInTemaDi",
                                    "cmdEnglishAbstract", "cmdTraduzione", "cmdNota",
                                    "cmdNotaDoc"};
  const auto icone = [this, &kPulsanti] {
    QList<QImage> immagini;
    for (const char* nome : kPulsanti) {
      immagini += Trova<QPushButton>(*forma, nome).icon().pixmap(20, 20).toImage();
    }
    return immagini;
  };
  Apri("1");
  const QList<QImage> piene = icone();
  Apri("2");
  QList<QImage> attese = icone();
  for (std::size_t i = 0; i < kPulsanti.size(); ++i) {
    const auto posto = static_cast<qsizetype>(i);
    EXPECT_NE(attese.at(posto), piene.at(posto)) << kPulsanti.at(i);
    Vai(kPulsanti.at(i));
    BattiConForme(" ", {[](QWidget& modale) {
                    Batti("x");
                    Clic(modale, "cmdEsci");
                  }});
    attese[posto] = piene.at(posto);
    EXPECT_TRUE(icone() == attese) << kPulsanti.at(i);
  }
}

TEST_F(FormaDocumento, ScrollsToTheFieldWhereThereIsNoRoom) {
  Apri("1");
  forma->resize(500, 300);
  for (const char* nome : {"cmdEsci", "txtID"}) {
    Vai(nome);
    EXPECT_EQ(Trova<QPushButton>(*forma, "cmdEsci").visibleRegion().isEmpty(), nome[0] == 't');
    EXPECT_EQ(Trova<QLineEdit>(*forma, "txtID").visibleRegion().isEmpty(), nome[0] == 'c');
  }
}

TEST_F(FormaDocumento, EnteringAFieldSelectsItWhole) {
  Apri("1");
  for (const char* campo : {"txtFascicolo", "txtAA", "txtPagine"}) {
    Vai(campo);
    Batti("9");
    EXPECT_EQ(Riga(campo), "9");
  }
  Vai("txtTitolo");
  Batti("nuovo titolo");
  EXPECT_EQ(Testo("txtTitolo").toStdString(), "nuovo titolo");
}

// The close box asks only where something would be lost, and an archive that is gone leaves the
// form as it stands.
TEST_F(FormaDocumento, NothingTypedIsLostByAccident) {
  Apri("1");
  Vai("txtTitolo");
  Batti("perso");
  prova.dialoghi.AttendeDomanda("Confermi l'uscita ?", "", Pulsanti::OkAnnulla, Risposta::Annulla);
  forma->close();
  EXPECT_TRUE(forma->isVisible());
  prova.stato.DbArchivio.Close();
  for (const char* tasto : {"{F4}", "{F2}", "{F5}", "{F6}"}) {
    Batti(tasto);
    EXPECT_TRUE(prova.dialoghi.UltimoMessaggio().startsWith("Errore di run-time '3420'")) << tasto;
    EXPECT_EQ(Testo("txtTitolo"), "perso");
  }
  prova.dialoghi.AttendeDomanda("Confermi l'uscita ?", "", Pulsanti::OkAnnulla, Risposta::Ok);
  forma->close();
  EXPECT_FALSE(forma->isVisible());
}

// The archive opened again takes what was typed meanwhile; another one must not.
TEST_F(FormaDocumento, AnArchiveOpenedAgainServesAsBefore) {
  const QString sua = prova.stato.DbArchivio.Name();
  const QString altra = prova.cartella.Mdb("B01.MDB");
  ASSERT_TRUE(QFile::copy(sua, altra));
  for (const char* numero : {"1", ""}) {
    Apri(numero);
    Trova<QLineEdit>(*forma, "txtCPer").setText("ZZZZ");
    Vai("txtTitolo");
    Batti("salvato");
    prova.stato.DbArchivio.Close();
    prova.stato.DbArchivio = OpenDatabase(altra);
    Batti("{F4}");
    EXPECT_EQ(
        prova.dialoghi.UltimoMessaggio(),
        "Errore di run-time '3420': Il documento è di un altro archivio, che va riaperto: " + sua);
    prova.stato.DbArchivio.Close();
    prova.stato.DbArchivio = OpenDatabase(sua);
    Batti("{F4}");
    EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "Documento salvato!");
    Batti("{F3}");
  }
  Apri("3");
  EXPECT_EQ(Testo("txtTitolo"), "salvato");
}

}  // namespace
}  // namespace torvi
