#include "fonti/frmTabInterna.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTabWidget>

#include "archive/schema.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"

namespace torvi {
namespace {

class FormaTabInterna : public testing::Test {
 protected:
  FormaTabInterna() {
    stato.NuovaFonte = true;
    const UnitaDiScrittura unita(stato.DbArchivio);
    // Both levels, and the name.
    for (const QString& atto :
         QString(
             "0  Cost.|1  c.c.|1  Norme bancarie uniformi|21 l.|21 l. delega|21 d.lg.|22 l.p.|23 "
             "l.r.|26 d.m.|"
             "26 dir. p.c.m.|26 d.p.c.m.|27 circ.|28 reg. r.|29 provv.|2a c.c.n.l.|33 Trib.|"
             "33 App.|34 Comm. trib.|36 C. Stato|37 Trib. Acque|38 Comm. brevetti|39 Coll. arb.|"
             "3a ABF")
             .split('|')) {
      Riga(
          "TabFonteInterna",
          {{"FonteNorm", atto.mid(3)}, {"liv1", atto.left(1)}, {"liv2", atto.mid(1, 1).trimmed()}});
    }
    for (const char* citta : {"Roma", "Asti", "Rovigo"}) Riga("TabCitta", {{"citta", citta}});
    for (const char* sezione : {"s.u.", "I"}) Riga("TabSezione", {{"sigla", sezione}});
    Riga("TabMinistero", {{"MinisteroNorm", "Giustizia"}});
    Riga("TabAmministrazione", {{"AmministrazioneNorm", "Dogane"}});
    Riga("TabAutorita", {{"AutoritaNorm", "Garante"}});
  }
  void Riga(const char* tabella, Valori valori) const {
    Aggiungi(stato.DbArchivio, tabella, valori);
  }
  void Apri(int scheda = 0) {
    forma = std::make_unique<frmTabInterna>(stato, dialoghi);
    forma->show();
    QApplication::setActiveWindow(forma.get());
    for (int i = 0; i < scheda; ++i) Batti("{Ctrl+Tab}");
  }
  [[nodiscard]] QWidget& Pagina() const {
    return *Trova<QTabWidget>(*forma, "SSTabInterna").currentWidget();
  }
  void Vai(const char* controllo) const { Trova<QWidget>(Pagina(), controllo).setFocus(); }
  void Sceglie(const QString& voce) const {
    Vai("ComboFonte");
    Batti(voce + "{Tab}");
  }
  [[nodiscard]] QString Testo(const char* campo) const {
    return Trova<QLineEdit>(Pagina(), campo).text();
  }
  [[nodiscard]] QString Voce(const char* combo) const {
    return Trova<QComboBox>(Pagina(), combo).currentText();
  }
  [[nodiscard]] QString Lista(const char* nome) const {
    return Linee(Trova<QListWidget>(Pagina(), nome)).join('|');
  }
  [[nodiscard]] static QString Fuoco() { return QApplication::focusWidget()->objectName(); }
  // The frames by their letters, the acts, and each Info that is on with its list.
  [[nodiscard]] std::string Mostrato() const {
    QString frame;
    for (const auto& [nome, segno] : {std::pair{"FrameRipartizioni", 'R'},
                                      {"FrameEstremi", 'E'},
                                      {"FrameAltro", 'A'},
                                      {"FrameRegione", 'G'}}) {
      if (Trova<QWidget>(Pagina(), nome).isVisible()) frame += QLatin1Char(segno);
    }
    QStringList parti(frame);
    if (Trova<QListWidget>(Pagina(), "lstFonte").isEnabled()) parti += Lista("lstFonte");
    for (const auto& [etichetta, campo, elenco] :
         {std::tuple{"LabelInfo1", "txtInfo1", "lstElenco1"},
          {"LabelInfo2", "txtInfo2", "lstElenco2"},
          {"LabelInfo3", "txtInfo3", ""}}) {
      const auto& titolo = Trova<QLabel>(Pagina(), etichetta);
      const bool attivo = Trova<QLineEdit>(Pagina(), campo).isEnabled();
      EXPECT_EQ(titolo.isVisible(), attivo) << campo;
      if (!attivo) continue;
      parti += titolo.text();
      if (*elenco != 0) parti.last() += ":" + Lista(elenco);
    }
    return parti.join(" - ").toStdString();
  }
  [[nodiscard]] std::string Righe() const {
    QStringList righe;
    for (const RigaFonte& riga : stato.RigheFonte) righe += riga.TP + " " + riga.Testo;
    return righe.join('|').toStdString();
  }
  [[nodiscard]] std::string Anteprima() const {
    QString testo = Trova<QLabel>(*forma, "labelAnteprima").text();
    testo.replace(QRegularExpression("<span[^>]*>"), "[").replace("</span>", "]");
    return testo.toStdString();
  }

  // Acts with an item of the list, of a kind without items, without a number, without its item.
  void NuovoCatalogo() const {
    const QString percorso = cartella.Mdb("catalogo norme.mdb");
    CreaDatabase(percorso, SchemaCatalogo());
    const Database catalogo = OpenDatabase(percorso);
    for (const auto& [abbreviazione, giorno, anno, numero] :
         {std::tuple{"d.lgs.", "02/12", 2001, Campo("9")},
          {"l.cost.", "03/01", 2002, Campo("3")},
          {"dir.p.c.m.", "14/10", 2003, Campo()},
          {"regio_d.", "16/07", 2005, Campo("6")}}) {
      const Valori valori = {{"anno", anno},
                             {"numero", numero},
                             {"abbreviazione", abbreviazione},
                             {"promulgazione", QString("%1/%2").arg(giorno).arg(anno)},
                             {"titolo", "Norme sull'atto"},
                             {"estremi", QString("%1 %2").arg(abbreviazione).arg(anno)}};
      Aggiungi(catalogo, "tabCatalogo", valori);
    }
  }
  void ApriCatalogo() {
    Apri(2);
    Vai("cmdCatalogoFonti");
    Batti(" ");
    EXPECT_EQ(Fuoco(), "ComboCatalogoFonte");
  }
  void Cerca(const char* campo, const QString& testo) const {
    Trova<QLineEdit>(*forma, campo).setText(testo);
    Clic(*forma, "cmdCercaCatalogo");
  }
  [[nodiscard]] int Trovati() const { return Trova<QListWidget>(*forma, "lstRisultato").count(); }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  DialoghiScritti dialoghi;
  std::unique_ptr<frmTabInterna> forma;
};

TEST_F(FormaTabInterna, EachKindShowsWhatItNeeds) {
  const QString province = "Provincia:BZ - Bolzano|TN - Trento";
  const QString citta = "Città:Asti|Roma|Rovigo";
  const QString sezione = "Sezione:I|s.u.";
  const struct {
    int scheda;
    QString voce;
    QString mostrato;
  } casi[] = {
      {0, "cost.", "R"},
      {1, "c.c.", "R"},
      {2, "Normativa", ""},  // the header, so far
      {2, "Legge costituzionale", "RE"},
      {2, "Atti statali aventi forza di legge", "RE - l.|l. delega|d.lg."},
      {2, "Leggi e statuti provinciali", "RE - l.p. - " + province},
      {2, "Leggi e statuti regionali", "REG - l.r."},
      {2, "Regolamento della Camera", "R"},
      {2, "senato", "R"},
      {2, "Atti governativi", "RE - d.m.|dir. p.c.m.|d.p.c.m. - Ministero:Giustizia"},
      {2, "Atti di altre amm", "RE - circ. - Amministrazione:Dogane"},
      {2, "enti locali", "REG - reg. r. - " + province},
      {2, "Atti delle autorità", "RE - provv. - Autorità:Garante"},
      {2, "Contratti collettivi", "RE - c.c.n.l. - Specifica"},
      {2, "Normativa", "RE - c.c.n.l. - Specifica"},  // stays as it was
      {3, "Corte costituzionale", "EA"},
      {3, "Consiglio di giurisdizione", "EA"},
      {3, "Corte suprema di Cassazione", "EA - " + sezione},
      {3, "Giurisprudenza ordinaria", "EA - Trib.|App. - " + citta + " - " + sezione + " - Altro"},
      {3, "tributaria", "EAG - Comm. trib. - " + citta + " - " + sezione},
      {3, "Corte dei Conti", "EAG - " + sezione},
      {3, "Giurisprudenza amministrativa", "EAG - C. Stato - " + citta + " - " + sezione},
      {3, "Giurisprudenza speciale", "EAG - Trib. Acque|Comm. brevetti - " + citta},
      {3, "alternative", "EA - Coll. arb.|ABF - " + citta + " - Ente/parti/..."},
      {3, "Giurisprudenza sportiva", "E - Specifica"}};
  int aperta = -1;
  for (const auto& caso : casi) {
    if (caso.scheda != aperta) Apri(aperta = caso.scheda);
    Sceglie(caso.voce);
    EXPECT_EQ(Mostrato(), caso.mostrato.toStdString()) << caso.voce.toStdString();
  }
  EXPECT_LE(forma->height(), 680);
}

TEST_F(FormaTabInterna, SavesOnEachTabByKeysAlone) {
  const struct {
    int scheda;
    QString voce;
    const char* tasti;  // from the control that comes next
    const char* riga;
  } casi[] = {
      {0, "cost.", "3{Tab}bis.1{Tab}2{Tab}vices{Tab}", "LIC art. 3 bis.1 comma 2 Cost."},
      {1, "norme", "{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}B", "LIAB  all. B Norme bancarie uniformi"},
      {2, "atti statali", "l.{Tab}5{Tab}messidoro{Tab}1999{Tab}7{Tab}3",
       "LIO art. 3 l. 5 messidoro 1999, n. 7"},
      {2, "statuti regionali",
       "{Down}{Tab}{Tab}{Tab}1999{Tab}7{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}"
       "{Tab}lomb{Tab}",
       "LIR l.r. LO 1999, n. 7"},
      {2, "governativi", "{Down}{Tab}giu{Return}{Return}1{Tab}lug{Tab}2003",
       "LIOA d.m. Giustizia 1 luglio 2003"},
      {3, "ordinaria",
       "{Down}{Tab}rom{Tab}{Return}II{Tab}{Tab}min.{Tab}{Tab}13{Tab}1999{Tab}{Tab}"
       "{Tab} ",
       "GIO decr. Trib. min. Roma II 1999"},
  };
  for (const auto& caso : casi) {
    stato.RigheFonte.clear();
    Apri(caso.scheda);
    EXPECT_EQ(Fuoco(), "ComboFonte");
    Batti(caso.voce + "{Tab}" + caso.tasti);
    EXPECT_EQ(Anteprima(), QString(caso.riga).section(' ', 1).toStdString());
    Clic(Pagina(), "cmdSalva");
    EXPECT_EQ(Righe(), caso.riga);
    Clic(Pagina(), "cmdClear");  // the fields had stayed
    EXPECT_EQ(Righe(), std::string(caso.riga) + "|" + caso.riga);
    const auto campi = Pagina().findChildren<QLineEdit*>(QRegularExpression("^txt"));
    const auto caselle = Pagina().findChildren<QCheckBox*>();
    for (auto* campo : campi) campo->setText("7");
    for (auto* casella : caselle) casella->setChecked(true);
    Clic(Pagina(), "cmdClear");
    for (const auto* campo : campi)
      EXPECT_EQ(campo->text(), "") << campo->objectName().toStdString();
    for (const auto* casella : caselle) EXPECT_FALSE(casella->isChecked());
    for (const auto* combo : Pagina().findChildren<QComboBox*>()) {
      EXPECT_EQ(combo->currentText(), combo->itemText(0));
    }
    EXPECT_EQ(Lista("lstFonte"), "");
    EXPECT_EQ(Anteprima(), "[Nessuna fonte immessa!]");
  }
  EXPECT_EQ(dialoghi.Messaggi().size(), std::ssize(casi));  // of nothing chosen, before the clear
}

TEST_F(FormaTabInterna, LeavesOnlyWithASourceOrByAbandoning) {
  Apri(2);
  const auto esceESalva = [this] { Clic(Pagina(), "cmdEsciSalva"); };
  esceESalva();
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Nessuna fonte immessa!");
  EXPECT_EQ(dialoghi.Parole().last().titolo, "Attenzione");
  Sceglie("atti statali");
  Batti("{Tab}5");
  esceESalva();
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Manca l'atto!");
  EXPECT_TRUE(forma->isVisible());
  EXPECT_EQ(Righe() + Testo("txtGG").toStdString(), "5");
  Clic(Pagina(), "cmdClear");  // also after a failure
  EXPECT_EQ(Righe() + Testo("txtGG").toStdString(), "");
  dialoghi.AttendeDomanda("Manca il ministero: giusto?", "Attenzione!", Pulsanti::SiNoAnnulla,
                          Risposta::No);
  Sceglie("governativi");
  Batti("{Down}");
  esceESalva();
  EXPECT_TRUE(forma->isVisible() && stato.RigheFonte.empty());
  stato.NuovaFonte = false;
  Sceglie("camera");
  esceESalva();
  EXPECT_TRUE(forma->isVisible());
  EXPECT_EQ(dialoghi.Messaggi().size(), 3);
  stato.NuovaFonte = true;
  Clic(Pagina(), "cmdSalva");
  Clic(Pagina(), "cmdAbbandona");
  EXPECT_EQ(forma->result(), QDialog::Rejected);
  EXPECT_FALSE(forma->isVisible());
  EXPECT_EQ(Righe(), "LIOA reg. cam.");
  // A mnemonic leaves the focus in the combo: what is typed there counts as chosen.
  Apri(2);
  Batti("senato{Esc}{Alt+E}");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !forma->isVisible(); }));
  EXPECT_EQ(forma->result(), QDialog::Accepted);
  EXPECT_EQ(Righe(), "LIOA reg. cam.|LIOA reg. sen.");
}

TEST_F(FormaTabInterna, AChangeOfTabClearsTheNewOne) {
  Apri(2);
  Sceglie("governativi");
  Batti("{Tab}giu{Tab}{Tab}5{Tab}");
  Batti("{Ctrl+Tab}");
  Sceglie("tributaria");
  Batti("{Tab}ro");
  Batti("{Ctrl+Shift+Tab}");
  EXPECT_EQ(Fuoco() + Voce("ComboFonte"), "ComboFonteNormativa");
  EXPECT_EQ(Testo("txtGG") + Testo("txtInfo1") + Lista("lstFonte") + Lista("lstElenco1"), "");
  EXPECT_EQ(Mostrato(), "RE -  - Ministero:");
  Batti("{Ctrl+Tab}");
  EXPECT_EQ(Testo("txtInfo1"), "");
  EXPECT_EQ(Mostrato(), "EAG -  - Città:Asti|Roma|Rovigo - Sezione:I|s.u.");
}

TEST_F(FormaTabInterna, TheInfoListsFollowWhatIsTyped) {
  Apri(3);
  Sceglie("ordinaria");
  Batti("{Down}");
  Vai("txtInfo1");
  const auto& citta = Trova<QListWidget>(Pagina(), "lstElenco1");
  for (const auto& [tasti, scelta] : {std::pair{"r", "Roma"}, {"ov", "Rovigo"}, {"q", "Rovigo"}}) {
    Batti(tasti);
    EXPECT_EQ(citta.selectedItems().value(0)->text(), scelta);
  }
  EXPECT_EQ(Testo("txtInfo1"), "rovq");
  EXPECT_EQ(Anteprima(), "Trib. rovq");
  const auto primo = citta.visualItemRect(citta.item(0)).center();
  QTest::mouseClick(citta.viewport(), Qt::LeftButton, {}, primo);
  QTest::mouseDClick(citta.viewport(), Qt::LeftButton, {}, primo);
  EXPECT_EQ(Testo("txtInfo1"), "Asti");
  Vai("lstElenco2");
  Batti("{Return}");  // walked through
  EXPECT_EQ(Testo("txtInfo2"), "");
  Vai("lstElenco2");
  Batti("{Down}{Return}");
  EXPECT_EQ(Testo("txtInfo2") + Fuoco(), "ItxtInfo3");
}

TEST_F(FormaTabInterna, CarriesAnActOfTheCatalogueOver) {
  NuovoCatalogo();
  const QStringList attesi = {"Atti statali aventi forza di legge|d.lg.|2|dicembre|2001|9",
                              "Legge costituzionale||3|gennaio|2002|3",
                              "Atti governativi e ministeriali|dir. p.c.m.|14|ottobre|2003|",
                              "Atti statali aventi forza di legge||16|luglio|2005|6"};
  ApriCatalogo();
  for (int i = 0; i < attesi.size(); ++i) {
    Cerca("txtCatalogoParola", "Norme sull'atto");
    ASSERT_EQ(Trovati(), attesi.size());
    Batti(QString("{Down}").repeated(i + 1));
    EXPECT_TRUE(Trova<QPlainTextEdit>(*forma, "txtRisultato")
                    .toPlainText()
                    .endsWith(' ' + attesi.at(i).section('|', 4, 4) + "\nNorme sull'atto"));
    Batti("{Return}");
    EXPECT_EQ(Fuoco(), "txtArt");
    const auto scelti = Trova<QListWidget>(Pagina(), "lstFonte").selectedItems();
    const QStringList valori = {
        Voce("ComboFonte"), scelti.isEmpty() ? QString() : scelti.first()->text(),
        Testo("txtGG"),     Voce("ComboMese"),
        Testo("txtAA"),     Testo("txtN")};
    EXPECT_EQ(valori.join('|').toStdString(), attesi.at(i).toStdString());
    Clic(Pagina(), "cmdCatalogoFonti");
  }
}

TEST_F(FormaTabInterna, SearchesTheCatalogue) {
  NuovoCatalogo();
  ApriCatalogo();
  auto& lista = Trova<QListWidget>(*forma, "lstRisultato");
  Clic(*forma, "cmdCercaCatalogo");  // nothing asked
  EXPECT_TRUE(dialoghi.Parole().isEmpty());
  Trova<QWidget>(*forma, "ComboCatalogoFonte").setFocus();
  Batti("d.lg.{Tab}2{Tab}dic{Tab}{Alt+R}");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Trovati() > 0; }));
  EXPECT_EQ(Linee(lista).join('|'), "1) d.lgs. 2001 --- Norme sull'atto");
  Cerca("txtCatalogoNumero", "77");
  EXPECT_EQ(dialoghi.Messaggi(),
            QStringList("Non ci sono provvedimenti che soddisfano la ricerca - cambiare e "
                        "riprovare"));
  EXPECT_EQ(Trovati(), 1);
  // A new opening keeps the month alone of what was asked here.
  Batti("{Esc}");
  EXPECT_TRUE(forma->isVisible());
  Clic(Pagina(), "cmdCatalogoFonti");
  EXPECT_EQ(Trovati(), 0);
  for (const char* campo : {"txtCatalogoGiorno", "txtCatalogoAnno", "txtCatalogoNumero"}) {
    EXPECT_EQ(Trova<QLineEdit>(*forma, campo).text(), "") << campo;
  }
  EXPECT_EQ(Trova<QComboBox>(*forma, "ComboCatalogoFonte").currentText(), "");
  EXPECT_EQ(Trova<QComboBox>(*forma, "ComboCatalogoMese").currentText(), "dicembre");
  const auto& parte = Trova<QComboBox>(*forma, "ComboParte");
  EXPECT_FALSE(parte.isEnabled());
  Trova<QLineEdit>(*forma, "txtCatalogoParola").setFocus();
  Batti("atto assente{Tab}{Right}{Tab}{Down}");
  EXPECT_EQ(parte.currentText(), "Almeno una");
  Trova<QLineEdit>(*forma, "txtCatalogoParola").setFocus();
  Batti("{End}{Return}");
  EXPECT_EQ(Trovati(), 1);
  Clic(*forma, "cmdAbbandonaCatalogo");
  EXPECT_TRUE(Pagina().isVisible());
}

TEST_F(FormaTabInterna, AMissingCatalogueFailsAtTheSearch) {
  ApriCatalogo();
  Clic(*forma, "cmdCercaCatalogo");
  EXPECT_TRUE(dialoghi.Parole().isEmpty());
  Cerca("txtCatalogoAnno", "2000");
  EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("Errore di run-time '91'"));
  EXPECT_EQ(Trova<QLineEdit>(*forma, "txtCatalogoAnno").text(), "2000");
  EXPECT_TRUE(Trova<QWidget>(*forma, "frameInterrogazioneCatalogo").isVisible());
}

}  // namespace
}  // namespace torvi
