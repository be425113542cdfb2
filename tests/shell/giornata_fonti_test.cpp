// A document that cites a source of every kind, entered by keys alone, saved, loaded again,
// corrected and exported.
#include <QListWidget>

#include "archive/master.h"
#include "shell/giornata.h"

namespace torvi {
namespace {

// What is typed into the fields of one source, field by field in the order of the form.
struct Immissione {
  int scheda;
  const char* campi;  // "control=keys;...", "#3" for three times down a list
};

constexpr Immissione kInterne[] = {
    {0, "ComboFonte=cost.;txtArt=3;ComboRipA=bis;txtComma=2;ComboRipC=ter;txtLett=c"},
    {1, "ComboFonte=c.c.;txtArt=2043"},
    {1, "ComboFonte=norme;txtArt=4;txtAll=B"},
    {2, "ComboFonte=costituzionale;txtGG=22;ComboMese=nov;txtAA=1967;txtN=2;txtArt=1"},
    {2,
     "ComboFonte=atti statali;lstFonte=#3;txtGG=30;ComboMese=giugno;txtAA=2003;txtN=196;"
     "txtArt=7;txtComma=4;txtLett=b;txtNumP=2"},
    {2,
     "ComboFonte=provinciali;lstFonte=#1;txtInfo1=BZ - Bolzano;txtGG=3;ComboMese=mag;txtAA=1999;"
     "txtN=1"},
    {2, "ComboFonte=statuti regionali;lstFonte=#1;ComboRegione=to;txtAA=2001;txtN=12"},
    {2, "ComboFonte=camera;txtArt=5"},
    {2, "ComboFonte=governativi;lstFonte=#1;txtInfo1=M. dell'inventato;txtAA=2003;txtN=5"},
    {2, "ComboFonte=collettivi;lstFonte=#5;txtInfo3=metalmeccanici \"A\";txtAA=1999"},
    {3, "ComboFonte=Corte costituzionale;txtGG=7;ComboMese=apr;txtAA=1988;txtN=404;chkOrd= "},
    {3, "ComboFonte=Consiglio di giuri;txtAA=1999;txtN=5"},
    {3, "ComboFonte=suprema;txtInfo2=I;txtAA=1999;txtN=500"},
    {3,
     "ComboFonte=ordinaria;lstFonte=#15;txtInfo1=Cittanova;txtInfo2=xx;txtInfo3=sez. fer.;"
     "txtAA=2000;chkDecr= "},
    {3, "ComboFonte=tributaria;lstFonte=#4;txtInfo1=Roma;txtAA=2000;txtN=7"},
    {3, "ComboFonte=Corte dei;ComboRegione=sa;txtAA=2000;txtN=8"},
    {3, "ComboFonte=amministrativa;lstFonte=#5;ComboRegione=la;txtInfo1=Latina;txtAA=2000;txtN=9"},
    {3, "ComboFonte=speciale;lstFonte=#2;txtAA=2000;txtN=10"},
    {3, "ComboFonte=speciale;lstFonte=#4;txtAA=2000;txtN=11"},
    {3, "ComboFonte=speciale;lstFonte=#3;txtAA=2000;txtN=12"},
    {3, "ComboFonte=alternative;lstFonte=#1;txtInfo1=Milano;txtInfo3=A c. B;txtAA=2000"},
    {3, "ComboFonte=sportiva;txtInfo3=C.A.F.;txtAA=2000"},
};

constexpr Immissione kAltre[] = {
    {0, "ComboFonte=nit{Tab};lstNIT=#2;cmdSalvaNIT= ;txtArt=2"},
    {0, "ComboFonte=nia;lstFonte=#1;txtGG=2;ComboMese=mag;txtAA=1990;txtN=7;txtLibero=Beta"},
    {0, "ComboFonte=gei;lstFonte=#1;txtGG=3;ComboMese=mar;txtAA=1995;txtLibero=A c. B"},
    {1, "ComboFonte=- trattati;lstFonte=#2;txtArt=85;txtComma=1"},
    {1, "ComboFonte=derivato;lstFonte=#1;txtAA=2016;txtN=679;txtArt=5"},
    {1, "ComboFonte=convenzioni;lstFonte=#3;txtGG=27;ComboMese=set;txtAA=1968;txtN=3"},
    {1,
     "ComboFonte=gec;lstFonte=#1;txtGG=5;ComboMese=feb;txtAA=1963;txtN=26/62;txtLibero=V. G. L."},
    {2, "ComboFonte=ns;txtStato=Francia;txtLibero=c. civ.;txtArt=1382"},
    {2, "ComboFonte=gs;txtStato=Narnia;txtLibero=C. cass.;txtAA=1999;txtN=5"},
    {3, "ComboFonte=fcc;lstFonte=#1;txtArt=1055;txtComma=2"},
    {3, "ComboFonte=fca;txtLibero=Dignitas Connubii;txtAA=2005;txtArt=9"},
    {3, "ComboFonte=fcg;lstFonte=#1;txtInfo1=Roma;txtAA=1999;txtLibero=c. Bianchi"},
    {4, "ComboFonte=fsr;lstFonte=#1;txtLibero=D. 1.1.1"},
    {4, "ComboFonte=fsr;lstFonte=#2;txtLibero=P. Oxy. 1"},
    {4, "ComboFonte=fsr;lstFonte=#3;txtLibero=CIL 1"},
    {4, "ComboFonte=fsr;lstFonte=#4;txtLibero=Cic. Phil. 1"},
    {4, "ComboFonte=fsg;lstFonte=#1;txtLibero=g1"},
    {4, "ComboFonte=fsg;lstFonte=#2;txtLibero=g2"},
    {4, "ComboFonte=fsg;lstFonte=#3;txtLibero=g3"},
    {4, "ComboFonte=fsg;lstFonte=#4;txtLibero=g4"},
    {4, "ComboFonte=fsb;lstFonte=#1;txtLibero=b1"},
    {4, "ComboFonte=fsb;lstFonte=#2;txtLibero=b2"},
    {4, "ComboFonte=fsb;lstFonte=#3;txtLibero=b3"},
    {4, "ComboFonte=fsb;lstFonte=#4;txtLibero=b4"},
    {4, "ComboFonte=fse;txtLibero=Es. 20"},
    {4, "ComboFonte=fsi;txtLibero=Bartolo"},
    {4, "ComboFonte=fsa;lstFonte=#1;txtLibero=a1"},
    {4, "ComboFonte=fsa;lstFonte=#2;txtLibero=a2"},
    {4, "ComboFonte=fsa;lstFonte=#3;txtLibero=a3"},
    {4, "ComboFonte=fsa;lstFonte=#4;txtLibero=a4"},
    {4, "ComboFonte=fsa;txtLibero=a5"},
};

// The columns of a row of TabFonte, in the order of the file of expected rows.
constexpr const char* kColonne =
    "IDFonte tp fonte testo articolo ripa comma ripc lettera numeroP allegato giorno mese anno "
    "numero altro ordinanza decreto IDRegione IDProvincia IDCitta IDSezione IDMinistero "
    "IDAmministrazione IDAutorita IDStato";

// Ranges of numbers, a line each.
std::string Numeri(std::initializer_list<std::pair<int, int>> tratti) {
  QStringList numeri;
  for (const auto& [primo, ultimo] : tratti) {
    for (int numero = primo; numero <= ultimo; ++numero) numeri += QString::number(numero);
  }
  return numeri.join(QLatin1Char('\n')).toStdString();
}

class GiornataFonti : public GiornataDiLavoro {
 protected:
  [[nodiscard]] static QString Fuoco() { return QApplication::focusWidget()->objectName(); }
  // Tab after Tab inside the form, whose fields follow each other as they are typed.
  static void Compila(const QString& campi) {
    for (const QString& campo : campi.split(QLatin1Char(';'))) {
      const QString nome = campo.section(QLatin1Char('='), 0, 0);
      for (int volte = 0; volte < 40 && Fuoco() != nome; ++volte) Batti("{Tab}");
      ASSERT_EQ(Fuoco(), nome) << campi.toStdString();
      const QString tasti = campo.section(QLatin1Char('='), 1);
      const bool lista = tasti.startsWith(QLatin1Char('#'));
      Batti(lista ? QStringLiteral("{Down}").repeated(tasti.mid(1).toInt()) : tasti);
    }
  }
  // "Salva e clear" after each source, "Esci e salva" after the last.
  static void Compila(std::span<const Immissione> fonti) {
    int scheda = 0;
    for (const Immissione& fonte : fonti) {
      for (; scheda < fonte.scheda; ++scheda) Batti("{Ctrl+Tab}");
      ASSERT_NO_FATAL_FAILURE(Compila(QString::fromUtf8(fonte.campi)));
      if (&fonte == &fonti.back()) break;
      Batti("{Alt+C}");
      // A mnemonic takes its moment.
      ASSERT_TRUE(QTest::qWaitFor([] { return Fuoco() == "ComboFonte"; })) << fonte.campi;
    }
    Batti("{Alt+E}");
  }
  void Inserisce(int opzione, std::span<const Immissione> fonti) const {
    Fa("{F9}", {Forma("Tipo di fonte", QStringLiteral("{Down}").repeated(opzione) + "{Return}"),
                [fonti](QWidget&) {
                  Compila(fonti);
                  if (HasFatalFailure()) Batti("{Esc}");
                }});
  }
};

TEST_F(GiornataFonti, EveryKindOfSourceIsEnteredCorrectedAndExported) {
  CreaCatalogo(cartella.Mdb(QStringLiteral("catalogo norme.mdb")));
  const auto riquadro = [](const char* domanda, Qt::Key tasto) {
    return Riquadro("Attenzione|" + QString::fromUtf8(domanda) + "|Sì|No", tasto);
  };
  Fa("{Alt+A}n");
  Batti("{Tab}AAPD{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}2{Tab}2001{Tab}12-34{Tab}{Tab}com");
  VaiA("txtTitolo");
  Batti("Di ogni fonte");
  Inserisce(0, kInterne);
  Inserisce(1, kAltre);
  Fa("{F12}", {riquadro("Ministero nuovo: aggiungere?", Qt::Key_S),
               Forma("Immissione testo", "Ministero dell'inventato{Tab}{Return}"),
               riquadro("Città nuova: aggiungere?", Qt::Key_S),
               riquadro("Sezione nuova: aggiungere?", Qt::Key_N),
               riquadro("Sezione nuova: aggiungere?", Qt::Key_N),
               riquadro("Stato nuovo: aggiungere?", Qt::Key_S), Riquadro(salvato)});
  const std::string attese =
      Byte(QStringLiteral(TORVI_RADICE "/tests/dati/giornata_fonti.txt")).toStdString();
  EXPECT_EQ(Righe(kColonne, "TabFonte") + '\n', attese);
  EXPECT_EQ(Righe("IDFnt", "LegameDocFonte where IDDoc = 1"), Numeri({{1, 53}}));
  EXPECT_EQ(Righe("MinisteroNorm ministero", "TabMinistero where nuovo = 1"),
            "M. dell'inventato|Ministero dell'inventato");
  EXPECT_EQ(Righe("citta", "TabCitta where nuovo = 1"), "Cittanova");
  EXPECT_EQ(Righe("stato", "TabStato where nuovo = 1"), "Narnia");

  // Loaded again, each source is what was entered.
  Fa("{Alt+A}e", {Forma("Scegli documento", "{Return}")});
  const auto& lista = Trova<QListWidget>(*finestra, "lstFonte");
  ASSERT_EQ(lista.count(), 53);
  EXPECT_EQ(lista.item(1)->text(), "art. 2043 c.c.");
  EXPECT_EQ(lista.item(22)->text(), "art. 2 Conv. Berna 9 settembre 1886*NIT*");
  VaiA("lstFonte");
  Batti("{Down}");
  Preme("cmdFonteM", {Forma("Modifica fonte", "{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}2059{Alt+E}")});
  VaiA("txtTitolo");
  Fa("{F4}", {Riquadro(salvato)});
  EXPECT_EQ(Righe("IDFonte tp testo articolo", "TabFonte where articolo = \"2059\""),
            "54|LIC|art. 2043 c.c.|2059");
  // Found again are only rows whose number is that of their kind, and those of no catalogue.
  EXPECT_EQ(Righe("IDFnt", "LegameDocFonte where IDDoc = 1"),
            Numeri({{1, 1}, {54, 81}, {30, 31}, {82, 82}, {33, 33}, {83, 83}, {35, 53}}));
  Fa("{F3}");
  EsportaEConfronta("giornata_fonti.isis");
}

}  // namespace
}  // namespace torvi
