// A document that cites a source of every kind, entered by keys alone, saved, loaded again,
// corrected and exported.
#include <QListWidget>

#include "archive/master.h"
#include "comune/tavole.h"
#include "shell/giornata.h"

namespace torvi {
namespace {

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
  return numeri.join('\n').toStdString();
}

class GiornataFonti : public GiornataDiLavoro {
 protected:
  [[nodiscard]] static QString Fuoco() { return QApplication::focusWidget()->objectName(); }
  // Tab after Tab inside the form, whose fields follow each other as they are typed.
  static void Compila(const QString& campi) {
    for (const QString& campo : campi.split(';')) {
      const QString nome = campo.section('=', 0, 0);
      for (int volte = 0; volte < 40 && Fuoco() != nome; ++volte) Batti("{Tab}");
      ASSERT_EQ(Fuoco(), nome) << campi.toStdString();
      const QString tasti = campo.section('=', 1);
      const bool lista = tasti.startsWith('#');
      Batti(lista ? QStringLiteral("{Down}").repeated(tasti.mid(1).toInt()) : tasti);
    }
  }
  // "Salva e clear" after each source, "Esci e salva" after the last.
  static void CompilaTutte(const QList<QStringList>& fonti) {
    int scheda = 0;
    for (const QStringList& fonte : fonti) {
      for (; scheda < fonte.at(1).toInt(); ++scheda) Batti("{Ctrl+Tab}");
      ASSERT_NO_FATAL_FAILURE(Compila(fonte.at(2)));
      if (&fonte == &fonti.back()) break;
      Batti("{Alt+C}");
      // A mnemonic takes its moment.
      ASSERT_TRUE(QTest::qWaitFor([] { return Fuoco() == "ComboFonte"; }))
          << fonte.at(2).toStdString();
    }
    Batti("{Alt+E}");
  }
  // The sources of the table that are entered with a form.
  void Inserisce(int opzione, const QString& forma) const {
    QList<QStringList> fonti = LeggiTavola("giornata_fonti_immesse.txt");
    fonti.removeIf([&forma](const QStringList& fonte) { return fonte.at(0) != forma; });
    Fa("{F9}", {Forma("Tipo di fonte", QStringLiteral("{Down}").repeated(opzione) + "{Return}"),
                [&fonti](QWidget&) {
                  CompilaTutte(fonti);
                  if (HasFatalFailure()) Batti("{Esc}");
                }});
  }
};

TEST_F(GiornataFonti, EveryKindOfSourceIsEnteredCorrectedAndExported) {
  CreaCatalogo(cartella.Mdb("catalogo norme.mdb"));
  const auto riquadro = [](const char* domanda, Qt::Key tasto) {
    return Riquadro("Attenzione|" + QString::fromUtf8(domanda) + "|Sì|No", tasto);
  };
  Fa("{Alt+A}n");
  Batti("{Tab}AAPD{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}2{Tab}2001{Tab}12-34{Tab}{Tab}com");
  VaiA("txtTitolo");
  Batti("Di ogni fonte");
  Inserisce(0, "interna");
  Inserisce(1, "altra");
  Fa("{F12}", {riquadro("Ministero nuovo: aggiungere?", Qt::Key_S),
               Forma("Immissione testo", "Ministero dell'inventato{Tab}{Return}"),
               riquadro("Città nuova: aggiungere?", Qt::Key_S),
               riquadro("Sezione nuova: aggiungere?", Qt::Key_N),
               riquadro("Sezione nuova: aggiungere?", Qt::Key_N),
               riquadro("Stato nuovo: aggiungere?", Qt::Key_S), Riquadro(salvato)});
  EXPECT_EQ(Righe(kColonne, "TabFonte") + '\n', Dati("giornata_fonti.txt"));
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
