#include "fonti/frmTabAltraFonte.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"
#include "fonti/salva_fonte.h"

namespace torvi {
namespace {

const QString kMancaAtto = "Manca l'atto!";

class FormaAltraFonte : public testing::Test {
 protected:
  FormaAltraFonte() {
    const UnitaDiScrittura unita(stato.DbArchivio);
    for (const auto& [tabella, colonna, nome, tipo] :
         {std::tuple{"TabFonteInt", "FonteInt", "Ris. ONU", 2},
          std::tuple{"TabFonteInt", "FonteInt", "C. int. giust.", 3},
          std::tuple{"TabFonteCom", "FonteCom", "Tratt. UE", 1},
          std::tuple{"TabFonteCom", "FonteCom", "Reg. UE", 2},
          std::tuple{"TabFonteCom", "FonteCom", "C. Giust.", 3},
          std::tuple{"TabFonteCom", "FonteCom", "Conv. Alfa", 4},
          std::tuple{"TabFonteCom", "FonteCom", "Conv. UE", 4},
          std::tuple{"TabFonteCan", "FonteCan", "Trib. Eccl. Reg.", 3}}) {
      Riga(tabella, {{colonna, nome}, {"Tipo", tipo}});
    }
    for (const char* nome : {"Roma", "Pisa"}) Riga("TabCitta", {{"citta", nome}});
    for (const char* nome : {"I", "II"}) Riga("TabSezione", {{"sigla", nome}});
    for (const char* nome : {"Spagna", "Francia"}) Riga("TabStato", {{"stato", nome}});
    for (const char* nome : {"Conv. Alfa 1950", "Acc. Beta 1960", "Conv. Gamma 1970"}) {
      Riga("TabNIT", {{"fonte", nome}, {"nit", "Conv."}});
    }
    stato.NuovaFonte = true;
  }
  qint64 Riga(const char* tabella, Valori valori) {
    return Aggiungi(stato.DbArchivio, tabella, valori);
  }
  void Convenzione(const char* numero, const char* altro) {
    Riga("TabFonte", {{"fonte", 30},
                      {"TP", "NIC"},
                      {"testo", "Conv. UE"},
                      {"giorno", "27"},
                      {"mese", "9"},
                      {"anno", "1968"},
                      {"numero", numero},
                      {"altro", altro}});
  }
  void Apri(int scheda = 0) {
    forma = std::make_unique<frmTabAltraFonte>(stato, dialoghi);
    forma->show();
    QApplication::setActiveWindow(forma.get());
    for (int i = 0; i < scheda; ++i) Batti("{Ctrl+Tab}");
  }
  // A kind by what is typed of it, from wherever the focus is.
  void Scegli(const QString& voce) {
    Controllo<QComboBox>("ComboFonte").setFocus();
    Batti("{Ctrl+A}" + voce + "{Tab}");
  }
  [[nodiscard]] QWidget& Pagina() const {
    return *Trova<QTabWidget>(*forma, "SSTabAltra").currentWidget();
  }
  template <typename Tipo>
  [[nodiscard]] Tipo& Controllo(const char* nome) const {
    return Trova<Tipo>(Pagina(), nome);
  }
  void Scrivi(std::initializer_list<std::pair<const char*, const char*>> testi) const {
    for (const auto& [campo, testo] : testi) {
      Controllo<QLineEdit>(campo).setFocus();
      Batti(QStringLiteral("{Ctrl+A}") + testo);
    }
  }
  // An act of the list, by the keys.
  void Atto(const QString& tasti) const {
    Controllo<QListWidget>("lstFonte").setFocus();
    Batti(tasti);
  }
  [[nodiscard]] QString Testo(const char* campo) const {
    return Controllo<QLineEdit>(campo).text();
  }
  [[nodiscard]] QString Anteprima() const { return Trova<QLabel>(*forma, "labelAnteprima").text(); }
  [[nodiscard]] bool TrattatiAperti() const {
    return Trova<QWidget>(*forma, "frameNIT").isVisible();
  }
  [[nodiscard]] static QString Fuoco() { return QApplication::focusWidget()->objectName(); }
  // What the chosen kind shows, as names.
  [[nodiscard]] QString Mostrati() const {
    QStringList nomi;
    for (const char* nome :
         {"FrameEstremi", "FrameRipartizioni", "txtLibero", "LabelLibero", "FrameAltro",
          "FrameRegione", "lstElenco1", "lstElenco2", "txtStato", "LabelStato", "cmdListaStati"}) {
      const auto& controllo = Controllo<QWidget>(nome);
      if (controllo.isVisible() && controllo.isEnabled()) nomi += nome;
    }
    const auto& lista = Controllo<QListWidget>("lstFonte");
    if (lista.isEnabled()) nomi += Linee(lista);
    return nomi.join(' ');
  }
  // The lines that the document's list would show.
  [[nodiscard]] std::string Righe() { return RigheDopoAltra(stato).join('|').toStdString(); }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  DialoghiScritti dialoghi;
  std::unique_ptr<frmTabAltraFonte> forma;
};

TEST_F(FormaAltraFonte, ShowsWhatEachKindNeeds) {
  Apri();
  EXPECT_EQ(forma->windowTitle(), "Tipi di diritto diverso da quello interno");
  const QString date = "FrameEstremi FrameRipartizioni ";
  const QString statoAcceso = " txtStato LabelStato cmdListaStati";
  const QString libero = "txtLibero LabelLibero";
  const auto storica = [&](const char* g) -> QString {
    return libero + QStringLiteral(
                        " giuridiche (*%1G*) papirologiche (*%1P*) epigrafiche (*%1E*) "
                        "letterarie (*%1L*)")
                        .arg(g);
  };
  const QString corte = date + libero + " FrameAltro FrameRegione lstElenco1";
  const std::vector<std::vector<std::tuple<QString, QString, QString>>> voci = {
      {{"NIT", "FrameRipartizioni " + libero,
        "Trattati, accordi, convenzioni internazionali (*NIT*)"},
       {"NIA", "FrameEstremi " + libero + " Ris. ONU",
        "Atti di organi di organismi internazionali (*NIA*)"},
       {"GEI", "FrameEstremi " + libero + " FrameAltro lstElenco2 C. int. giust.",
        "Giurisprudenza internazionale (*GEI*)"}},
      {{"Trattati", "FrameRipartizioni Tratt. UE", "Fonti normative (*NIC*) - Trattati"},
       {"derivato", date + "Reg. UE", "Fonti normative (*NIC*) - Diritto derivato"},
       {"conv", date + "txtLibero Conv. Alfa Conv. UE", "Fonti normative (*NIC*) - Convenzioni"},
       {"gec", "FrameEstremi " + libero + " FrameAltro lstElenco2 C. Giust.",
        "Fonti giurisprudenziali (*GEC*)"}},
      {{"NS", date + libero + statoAcceso, "Fonti normative (*NS*)"},
       {"GS", date + libero + " FrameAltro" + statoAcceso, "Fonti giurisprudenziali (*GS*)"}},
      {{"FCC", date + "C. Iur. Can.", "Fonti normative (*FCC*)"},
       {"FCA", date + libero, "Altre fonti normative (*FCA*)"},
       {"FCG", corte + " Trib. Eccl. Reg.", "Fonti giurisprudenziali (*FCG*)"},
       {"FCA", corte, "Altre fonti normative (*FCA*)"}},
      {{"FSR", storica("FSR"), "Fonti romane (*FSR*)"},
       {"FSG", storica("FSG"), "Fonti greche (*FSG*)"},
       {"FSB", storica("FSB"), "Fonti bizantine (*FSB*)"},
       {"FSC", libero, "Fonti cuneiformi (*FSC*)"},
       {"FSE", libero, "Fonti ebraiche (*FSE*)"},
       {"FSI", libero, "Fonti di diritto intermedio o comune (*FSI*)"},
       {"FSA", storica("FSA"), "Altre fonti (*FSA*)"}}};
  const QStringList schede = {"Diritto internazionale", "Diritto comunitario", "Diritto straniero",
                              "Diritto canonico", "Fonti storiche"};
  for (std::size_t scheda = 0; scheda < voci.size(); ++scheda) {
    const auto& combo = Controllo<QComboBox>("ComboFonte");
    const int posto = static_cast<int>(scheda);
    EXPECT_EQ(Trova<QTabWidget>(*forma, "SSTabAltra").tabText(posto), schede.at(posto));
    EXPECT_EQ(combo.currentText(), schede.at(posto));
    EXPECT_EQ(combo.findText(schede.at(posto)), -1);
    EXPECT_EQ(Controllo<QPushButton>("cmdSalva").text(), "Salva &" + QString::number(scheda));
    for (const auto& [tasti, mostrati, voce] : voci[scheda]) {
      Scegli(tasti);
      EXPECT_EQ(combo.currentText().toStdString(), voce.toStdString());
      EXPECT_EQ(TrattatiAperti(), tasti == "NIT");
      if (TrattatiAperti()) Batti("{Esc}");
      EXPECT_EQ(Mostrati().toStdString(), mostrati.toStdString()) << voce.toStdString();
      const bool canone = tasti == "FCC";
      EXPECT_EQ(Controllo<QLabel>("LabelArt").text(), canone ? "Canone" : "Articolo");
      EXPECT_EQ(Controllo<QLabel>("LabelComma").text(), canone ? "Paragrafo" : "Comma");
    }
    Batti("{Ctrl+Tab}");
  }
  EXPECT_TRUE(dialoghi.Parole().isEmpty());
}

TEST_F(FormaAltraFonte, StaysOpenUntilASourceIsComposed) {
  Apri();
  const auto esce = [this](const char* messaggio, std::size_t righe) {
    Clic(Pagina(), "cmdEsciSalva");
    EXPECT_TRUE(forma->isVisible());
    EXPECT_EQ(dialoghi.UltimoMessaggio(), messaggio);
    EXPECT_EQ(stato.RigheFonte.size(), righe);
  };
  esce("Nessuna fonte immessa!", 0);
  EXPECT_EQ(dialoghi.Parole().last().titolo, "Attenzione");
  Scegli("GEI");
  Clic(Pagina(), "cmdSalva");
  EXPECT_EQ(dialoghi.UltimoMessaggio(), kMancaAtto);
  EXPECT_EQ(dialoghi.Parole().last().titolo, "");
  EXPECT_TRUE(stato.RigheFonte.empty());
  Atto("{Down}");
  esce("Manca il giorno!", 1);
  Scrivi({{"txtGG", "3"}, {"txtAA", "1995"}});
  Controllo<QComboBox>("ComboMese").setFocus();
  Batti("mar");  // still being typed when the command is given
  Clic(Pagina(), "cmdEsciSalva");
  EXPECT_EQ(forma->result(), QDialog::Accepted);
  EXPECT_EQ(Righe(), "*0*|C. int. giust. 3 marzo 1995*GEI*");

  Apri(4);
  Scegli("FSC");
  Scrivi({{"txtLibero", "Hammurabi"}});
  for (const char* comando : {"cmdSalva", "cmdEsciSalva"}) {
    Clic(Pagina(), comando);
    EXPECT_EQ(dialoghi.UltimoMessaggio(), kMancaAtto);
    EXPECT_TRUE(forma->isVisible());
  }
  EXPECT_EQ(stato.RigheFonte.size(), 2U);
  Clic(Pagina(), "cmdAbbandona");
  EXPECT_EQ(forma->result(), QDialog::Rejected);
}

TEST_F(FormaAltraFonte, KeepsFieldsAfterSalvaAndEmptiesThemAfterClear) {
  Apri(3);
  Scegli("FCG");
  Atto("{Down}");
  Scrivi({{"txtLibero", "Beta"}, {"txtAA", "2001"}, {"txtArt", "1"}, {"txtInfo1", "Roma"}});
  Controllo<QComboBox>("ComboRegione").setFocus();
  Batti("laz{Tab}");
  Controllo<QCheckBox>("chkOrd").setChecked(true);
  Clic(Pagina(), "cmdSalva");
  EXPECT_EQ(Testo("txtLibero"), "Beta");
  Clic(Pagina(), "cmdClear");
  EXPECT_EQ(Righe(), "Trib. Eccl. Reg. LA 2001 (Beta)*FCG*|Trib. Eccl. Reg. LA 2001 (Beta)*FCG*");
  EXPECT_EQ(Controllo<QComboBox>("ComboRegione").currentText(), "LA - Lazio");
  EXPECT_EQ(Controllo<QComboBox>("ComboFonte").currentText(), "Diritto canonico");
  EXPECT_EQ(Controllo<QListWidget>("lstFonte").count(), 0);
  EXPECT_EQ(Linee(Controllo<QListWidget>("lstElenco1")).join('|'), "Pisa|Roma");
  EXPECT_EQ(Fuoco(), "ComboFonte");

  // The frames come back; another tab keeps what stands there.
  Batti("{Ctrl+Tab}");
  Scegli("FSI");
  Scrivi({{"txtLibero", "Bartolo"}});
  EXPECT_EQ(Mostrati(), "txtLibero LabelLibero");
  Batti("{Ctrl+Shift+Tab}{Ctrl+Tab}");
  EXPECT_EQ(Testo("txtLibero"), "Bartolo");
  Clic(Pagina(), "cmdClear");
  EXPECT_EQ(Mostrati(), "FrameEstremi FrameRipartizioni txtLibero LabelLibero");
}

TEST_F(FormaAltraFonte, ClearEmptiesEveryFieldOfEveryTab) {
  for (int scheda = 0; scheda < 5; ++scheda) {
    Apri(scheda);
    const auto campi = Pagina().findChildren<QLineEdit*>(QRegularExpression("^txt"));
    const auto caselle = Pagina().findChildren<QCheckBox*>();
    for (auto* campo : campi) campo->setText("7");
    for (auto* casella : caselle) casella->setChecked(true);
    for (const char* combo : {"ComboRipA", "ComboRipC", "ComboMese"}) {
      Controllo<QComboBox>(combo).setEditText("x");
    }
    Clic(Pagina(), "cmdClear");
    for (const auto* campo : campi) {
      EXPECT_EQ(campo->text(), campo->objectName() == "txtStato" ? "7" : "")
          << scheda << campo->objectName().toStdString();
    }
    for (const auto* casella : caselle) EXPECT_FALSE(casella->isChecked()) << scheda;
    EXPECT_EQ(Controllo<QComboBox>("ComboRipA").currentText(), "Ripartizione");
    EXPECT_EQ(Controllo<QComboBox>("ComboRipC").currentText(), "Ripartizione");
    EXPECT_EQ(Controllo<QComboBox>("ComboMese").currentText(), "Mese");
  }
}

TEST_F(FormaAltraFonte, FindsATreatyAndTakesItOver) {
  Apri();
  const auto& lista = Trova<QListWidget>(*forma, "lstNIT");
  const auto& scelto = Trova<QLineEdit>(*forma, "txtLiberoNIT");
  const QString tutti = "1) Conv. Alfa 1950|2) Acc. Beta 1960|3) Conv. Gamma 1970";
  EXPECT_EQ(Linee(lista).join('|'), tutti);
  Scegli("NIT");
  EXPECT_EQ(Fuoco(), "txtNIT");
  Clic(*forma, "cmdCercaNIT");  // nothing to seek
  EXPECT_EQ(Linee(lista).join('|'), tutti);
  struct Caso {
    const char* parole;
    int parte;  // negative: the whole field
    const char* trovati;
  };
  for (const auto& [parole, parte, trovati] :
       {Caso{"Acc. Beta 1960", -1, "2) Acc. Beta 1960"},
        Caso{"gamma conv", 0, "3) Conv. Gamma 1970"},
        Caso{"alfa 1960", 1, "1) Conv. Alfa 1950|2) Acc. Beta 1960"},
        Caso{"Conv. G", 2, "3) Conv. Gamma 1970"}}) {
    Clic(*forma, "cmdClearNIT");
    EXPECT_EQ(Linee(lista).join('|'), tutti);
    auto& combo = Trova<QComboBox>(*forma, "ComboParte");
    EXPECT_FALSE(combo.isEnabled());
    if (parte >= 0) {
      Trova<QRadioButton>(*forma, "optParte").click();
      EXPECT_EQ(combo.currentText(), "Tutte");
      combo.setCurrentIndex(parte);
    }
    Trova<QLineEdit>(*forma, "txtNIT").setFocus();
    Batti(QString(parole) + "{Return}");
    EXPECT_EQ(Linee(lista).join('|'), trovati);
  }
  Trova<QLineEdit>(*forma, "txtNIT").setFocus();
  Batti("{Ctrl+A}Omega{Return}");
  EXPECT_EQ(dialoghi.UltimoMessaggio(),
            "Non ci sono atti che soddisfano la ricerca - cambiare e riprovare");
  EXPECT_EQ(Linee(lista).join('|'), "3) Conv. Gamma 1970");
  Clic(*forma, "cmdClearNIT");

  Trova<QLineEdit>(*forma, "txtLiberoNIT").setFocus();
  Batti("3)");  // found, and completed only when asked for
  EXPECT_EQ(lista.currentRow(), 2);
  EXPECT_EQ(scelto.text(), "3)");
  Batti("{Return}");
  EXPECT_EQ(scelto.text(), "3) Conv. Gamma 1970");
  Trova<QListWidget>(*forma, "lstNIT").setFocus();
  Batti("{Up}");
  EXPECT_EQ(scelto.text(), "2) Acc. Beta 1960");
  QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                    lista.visualItemRect(lista.item(0)).center());
  Clic(*forma, "cmdSalvaNIT");
  EXPECT_FALSE(TrattatiAperti());
  EXPECT_EQ(Testo("txtLibero"), "1) Conv. Alfa 1950");
  EXPECT_EQ(Fuoco(), "txtArt");
  Batti("6{Tab}sexiesdecies");  // of no list here
  EXPECT_EQ(Anteprima(), "art. 6 sexiesdecies Conv. Alfa 1950");
  Clic(Pagina(), "cmdSalva");
  EXPECT_EQ(Righe(), "art. 6 sexiesdecies Conv. Alfa 1950*NIT*");
  Scrivi({{"txtLibero", "1 Conv."}});
  EXPECT_EQ(Anteprima(), "");
  Clic(Pagina(), "cmdEsciSalva");
  EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("Errore di run-time '5'"));
  EXPECT_EQ(Testo("txtLibero"), "1 Conv.");
}

// The treaties are opened by a choice, each time, and not by an arrow that goes over them.
TEST_F(FormaAltraFonte, OpensTheTreatiesByAChoiceAlone) {
  Apri();
  Batti("{Down}");
  EXPECT_FALSE(TrattatiAperti());
  EXPECT_EQ(Mostrati(), "FrameRipartizioni txtLibero LabelLibero");
  Batti("{Tab}");
  EXPECT_TRUE(TrattatiAperti());
  Batti("{Esc}");
  EXPECT_TRUE(forma->isVisible());
  EXPECT_EQ(Fuoco(), "ComboFonte");
  Batti("{Down}{Tab}");
  EXPECT_FALSE(TrattatiAperti());
  EXPECT_EQ(Fuoco(), "lstFonte");
  Scegli("NIT");
  Clic(*forma, "cmdAbbandonaNIT");
  auto& combo = Controllo<QComboBox>("ComboFonte");
  combo.showPopup();
  QTest::keyClick(combo.view(), Qt::Key_Return);  // the same item again
  QCoreApplication::processEvents();
  EXPECT_TRUE(TrattatiAperti());
}

TEST_F(FormaAltraFonte, WhatIsTypedAheadFindsTheFieldThatTheChoiceLeadsTo) {
  Apri();
  Batti("nia");
  Batti("{Tab}r", true);
  EXPECT_EQ(Fuoco(), "lstFonte");
  EXPECT_EQ(Controllo<QListWidget>("lstFonte").selectedItems().size(), 1);
  Controllo<QComboBox>("ComboFonte").setFocus();
  Batti("nit");
  Batti("{Tab}alfa", true);
  Batti("{Tab}{Right}");
  EXPECT_TRUE(TrattatiAperti());
  EXPECT_EQ(Trova<QLineEdit>(*forma, "txtNIT").text(), "alfa");
  EXPECT_TRUE(Trova<QRadioButton>(*forma, "optParte").isChecked());
  // The same kind again is a choice; what fits no kind is none.
  for (const auto& [tasti, aperti] : {std::pair{"{Esc}nit{Tab}", true}, {"{Esc}zz{Tab}", false}}) {
    Batti(tasti);
    EXPECT_EQ(TrattatiAperti(), aperti) << tasti;
  }
  Apri(2);
  Batti("(*gs*)");
  Batti("{Tab}Cour", true);
  EXPECT_EQ(Fuoco() + Testo("txtGG"), "txtGGCour");
}

TEST_F(FormaAltraFonte, OffersTheStates) {
  Apri(2);
  dialoghi.AttendeLista({"Francia", "Spagna"}, "Francia");
  dialoghi.AttendeLista({"Francia", "Spagna"}, "");
  for (int volta = 0; volta < 2; ++volta) {
    Clic(Pagina(), "cmdListaStati");
    EXPECT_EQ(Testo("txtStato"), "Francia");
  }
  Clic(Pagina(), "cmdClear");
  EXPECT_EQ(Testo("txtStato"), "Francia");
}

TEST_F(FormaAltraFonte, FillsItselfFromAConventionThatWasCited) {
  Convenzione("3", "Alfa");
  Convenzione("", "Beta");
  Apri(1);
  Scegli("Convenzioni");
  Atto("{Down}{Down}");  // over it: no list
  EXPECT_TRUE(dialoghi.Parole().isEmpty());
  const QStringList citate = {"1) Conv. UE", "2) Conv. UE"};
  dialoghi.AttendeLista(citate, citate.at(1));
  Batti("{Space}");
  const auto data = [this]() -> QString {
    return Testo("txtGG") + Controllo<QComboBox>("ComboMese").currentText() + Testo("txtAA") + "n" +
           Testo("txtN") + Testo("txtLibero");
  };
  EXPECT_EQ(data(), "27settembre1968nBeta");
  EXPECT_EQ(Fuoco(), "lstFonte");
  auto& lista = Controllo<QListWidget>("lstFonte");
  for (const QString& scelta : {citate.at(0), QString()}) {
    dialoghi.AttendeLista(citate, scelta);
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                      lista.visualItemRect(lista.item(1)).center());
    EXPECT_EQ(data(), "27settembre1968n3Alfa");
  }
  dialoghi.AttendeLista(citate, "");
  Batti("{Return}");  // and on
  EXPECT_EQ(Fuoco(), "txtGG");
  EXPECT_EQ(Anteprima(), "Conv. UE 27 settembre 1968, n. 3 (Alfa)");

  for (int altre = 2; altre < 12; ++altre) Convenzione("", "");
  Atto("{Space}");
  EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("Errore di run-time '9'"));
  EXPECT_EQ(data(), "27settembre1968n3Alfa");
  stato.DbArchivio.Execute("delete * from TabFonte");
  dialoghi.AttendeLista({}, "");
  Batti("{Space}");
  Atto("{Up}{Space}");  // any other act
}

TEST_F(FormaAltraFonte, TellsHowToWriteAndWhatIsMissing) {
  Apri(1);
  EXPECT_TRUE(Anteprima().contains("Nessuna fonte immessa!</span>")) << Anteprima().toStdString();
  Scegli("GEC");
  EXPECT_TRUE(Anteprima().contains(kMancaAtto.toHtmlEscaped()));
  Atto("{Down}");
  Controllo<QLineEdit>("txtInfo2").setFocus();
  Batti("i");  // seeks from the second section on
  EXPECT_EQ(Controllo<QListWidget>("lstElenco2").currentRow(), 1);
  Batti("{Tab}{Return}");
  Scrivi({{"txtGG", "9"}, {"txtAA", "1978"}});
  EXPECT_TRUE(Anteprima().contains("Manca il mese!"));
  Controllo<QComboBox>("ComboMese").setCurrentText("marzo");
  Controllo<QCheckBox>("chkDecr").click();
  EXPECT_EQ(Anteprima(), "decr. C. Giust. II 9 marzo 1978");
  Controllo<QCheckBox>("chkDecr").click();
  Controllo<QCheckBox>("chkOrd").click();
  EXPECT_EQ(Anteprima(), "ord. C. Giust. II 9 marzo 1978");
  Batti("{Ctrl+Tab}");
  EXPECT_TRUE(Anteprima().contains("Nessuna fonte immessa!"));
  EXPECT_TRUE(stato.RigheFonte.empty());
  EXPECT_TRUE(dialoghi.Parole().isEmpty());
  Clic(Pagina(), "cmdAid");
  EXPECT_EQ(dialoghi.Parole().last().titolo, "Formalismo");
  EXPECT_EQ(dialoghi.UltimoMessaggio(),
            "--> Non occorre mettere gli zeri a sinistra a nessun tipo di informazione numerica.\n"
            "--> L'anno deve essere nella forma 'aaaa'\n"
            "--> Le parentesi fisse nei testi liberi vengono messe automaticamente");
}

}  // namespace
}  // namespace torvi
