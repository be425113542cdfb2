// A day of an operator, by keys alone: documents entered, corrected, duplicated, found, deleted and
// exported.

#include "shell/giornata.h"

namespace torvi {
namespace {

class Giornata : public GiornataDiLavoro {
 protected:
  // The lines that a search shows; a search without result is told.
  [[nodiscard]] std::string Cerca(int campo, const QString& parole) const {
    QStringList linee;
    Passo cerca = [&](QWidget& modale) {
      EXPECT_EQ(modale.windowTitle(), "Ricerca documento");
      Batti(QStringLiteral("{Down}").repeated(campo + 1) + "{Tab}" + parole + "{Return}");
      linee = Linee(Trova<QListWidget>(modale, "lstRisultato"));
      Batti("{Esc}");
    };
    if (parole.startsWith('!')) {
      Fa("{Alt+A}r",
         {cerca,
          Riquadro("TorviEditor|Non esistono record che soddisfano la ricerca impostata|OK")});
    } else {
      Fa("{Alt+A}r", {cerca});
    }
    return linee.join('\n').toStdString();
  }

  void CorreggeEDuplica() const;
  void Cancella() const;
  void DocumentoDel2001() const;
  void DocumentoDel1998() const;
  void DocumentoDel2002() const;
};

void Giornata::DocumentoDel2001() const {
  Fa("{Alt+A}n");
  Batti(
      "{Tab}AAPD{Tab}1-2{Tab}12{Tab}{Tab}I{Tab}{Tab}{Tab}{Tab}3{Tab}2{Tab}2001{Tab}12-34{Tab}"
      "ingl{Tab}nota a{Tab}900{Tab}con note{Tab}L'usura \"bancaria\".{Tab}");
  Fa("{F7}", {Forma("Responsabilità", "D'Amico{Tab}Lucia{Tab}{Tab}{Return}")});
  Fa("{F7}", {Forma("Responsabilità", "Gruppo di studio{Tab}{Tab}{Right}{Tab}{Return}")});
  Fa("{F7}", {Forma("Responsabilità", "Verdi{Tab}Ugo{Tab}{Right}{Tab}{Return}")});
  Fa("{F8}", {Forma("Classificazione", "AB001{Tab}00002{Return}00003{Return}{Alt+E}")});
  Fa("{F8}",
     {Forma("Classificazione", "AB001{Tab}{Tab}{Tab}{Tab}{Tab}*sviluppo sostenibile{Alt+E}")});
  Fa("{F10}", {Forma("Testo riassunto", "Un riassunto{Return} in due righe.{Alt+E}")});
  Preme("cmdInTemaDi", {Forma("Testo 'In tema di'", "usura{Alt+E}")});
  Preme("cmdTraduzione", {Forma("Testo traduzione", "Usury.{Tab}{Return}")});
  Preme("cmdNota", {Forma("Campo nota", "Nota ambigua{Tab}{Return}")});
  Preme("cmdNotaDoc", {Forma("Testo nota al documento", "riga\\riga{Tab}{Return}")});
  VaiA("txtID");
  Fa("{F4}", {Riquadro(salvato)});
}

void Giornata::DocumentoDel1998() const {
  Preme("cmdNew");
  VaiA("txtID");
  Batti(
      "{Tab}ACMT{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}1998{Tab}{Tab}"
      "{Tab}articolo{Tab}400{Tab}senza{Tab}Città e università{Tab}desueto");
  Fa("{F8}", {Forma("Classifcazione ante 2000", "A11{Alt+E}")});
  Fa("{F4}", {Riquadro(salvato)});
}

void Giornata::DocumentoDel2002() const {
  Preme("cmdNew");
  VaiA("txtID");
  Batti(
      "{Tab}AGUS{Tab}7{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}11{Tab}2002{Tab}5{Tab}"
      "{Tab}comm{Tab}600{Tab}{Tab}Da togliere..");
  Fa("{F11}", {Forma("Testo sommario", "1. Uno - 2. Due.{Alt+E}")});
  Fa("{F8}", {Forma("Classificazione", "AB002{Alt+E}")});
  Fa("{F12}", {Riquadro(salvato)});
}

// The second document; what was corrected becomes a fourth one too.
void Giornata::CorreggeEDuplica() const {
  Fa("{Alt+A}e", {Forma("Scegli documento", "{Down}{Return}")});
  VaiA("txtTitolo");
  Batti("Le città");
  Fa("{F4}", {Riquadro(salvato)});
  Fa("{F2}", {Riquadro(salvato)});
  const auto& scritta = Trova<QLabel>(*finestra, "statoDocumento");
  EXPECT_EQ(scritta.text(), "Documento 4: esistente, non modificato");
  Fa("{F3}");
  EXPECT_EQ(scritta.text(), "");
}

// The third document, which leaves its links behind.
void Giornata::Cancella() const {
  Fa("{Alt+A}c{Return}");  // another entry has that letter too
  auto* scelta = finestra->findChild<QDialog*>("frmSceltaDoc");
  ASSERT_NE(scelta, nullptr);
  scelta->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(scelta));
  const Passo conferma = [scelta](QWidget& domanda) {
    EXPECT_EQ(domanda.parentWidget(), scelta);  // which gets the focus back
    Riquadro("Attenzione!|Confermi cancellazione?|Sì|No")(domanda);
  };
  Operatore::Esegue([] { Batti("{Down}{Down}{Tab} "); }, {conferma});
  scelta->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(scelta));
  Batti("{Esc}");
}

TEST_F(Giornata, FromAnEmptyDeliveryToItsExport) {
  DocumentoDel2001();
  DocumentoDel1998();
  DocumentoDel2002();
  EXPECT_EQ(Righe("IDDocumento IDRifBibl pagine LIN lo la lr Bib td TAbs", "TabDocumento"),
            "1|1|12-34|01|00|00|00|1|02|900\n"
            "2|2|-|00|00|00|00|0|01|400\n"
            "3|3|5|00|00|00|00||03|600");
  EXPECT_EQ(
      Righe("IDRifBibl IDRivista fascicolo annata volume parte serie supplemento sezione data",
            "TabRifBibl"),
      "1|1|1-2|12|-|I|-|-|-|03/02/2001\n"
      "2|2|-|-|-|-|-|-|-|00/00/1998\n"
      "3|3|7|-|-|-|-|-|-|00/11/2002");
  EXPECT_EQ(Righe("IDDoc Tipo IDTesto testo",
                  "LegameDocTesto, TabTesto where LegameDocTesto.IDTesto = TabTesto.IDTesto"),
            "1|0|1|L'usura \"bancaria\"\n1|1|2|Un riassunto in due righe.\n1|3|3|Usury\n"
            "1|5|4|riga\\riga\n1|6|5|Nota ambigua\n1|7|6|usura\n"
            "2|0|7|Città e università\n2|4|8|desueto\n"
            "3|0|9|Da togliere.\n3|2|10|1. Uno - 2. Due.");
  EXPECT_EQ(
      Righe("IDResponsabilita PrimoElemento SecondoElemento flagCollettivo", "TabResponsabilita"),
      "1|D'Amico|Lucia|0\n2|Gruppo di studio|-|1\n3|Verdi|Ugo|0");
  EXPECT_EQ(Righe("IDDoc IDResponsabilita flagAutore", "LegameDocResp"), "1|1|1\n1|2|0\n1|3|0");
  EXPECT_EQ(Righe("IDClasse2000 IDClasse2000-S IDClasse2000-D Classe2000-D Check", "TabClasse2000"),
            "1|1|2|-|0\n2|1|3|-|1\n3|1|0|*sviluppo sostenibile|2\n4|2|0|-|0");
  EXPECT_EQ(Righe("IDDoc IDClass", "LegameDocClass"), "1|1\n1|2\n1|3\n3|4");
  EXPECT_EQ(Righe("IDDoc IDClass", "LegameDocClass1999"), "2|2");

  CorreggeEDuplica();
  EXPECT_EQ(Righe("IDDocumento IDRifBibl", "TabDocumento"), "1|1\n2|4\n3|3\n4|5");
  EXPECT_EQ(Righe("IDDoc Tipo IDTesto testo",
                  "LegameDocTesto, TabTesto where LegameDocTesto.IDTesto = TabTesto.IDTesto and "
                  "LegameDocTesto.IDTesto > 10"),
            "2|0|11|Le città\n2|4|12|desueto\n4|0|13|Le città\n4|4|14|desueto");
  EXPECT_EQ(Righe("IDDoc IDClass", "LegameDocClass1999"), "2|2\n4|2");

  const std::string primo = "1 --> 2001A0012 ?";
  const std::string secondoEQuarto = "2 --> 2001A0013 ?\n4 --> 2001A0015 ?";
  const std::string terzo = "3 --> 2001A0014 ?";
  EXPECT_EQ(Cerca(0, "acmt"), secondoEQuarto);
  EXPECT_EQ(Cerca(1, "03/02/2001"), primo);
  EXPECT_EQ(Cerca(2, "1-2"), primo);
  EXPECT_EQ(Cerca(3, "d'amico"), primo);
  EXPECT_EQ(Cerca(4, "lucia"), primo);
  EXPECT_EQ(Cerca(5, "gruppo di studio"), primo);
  EXPECT_EQ(Cerca(6, "ugo"), primo);
  EXPECT_EQ(Cerca(7, "le città"), secondoEQuarto);
  EXPECT_EQ(Cerca(8, "un riassunto in due righe."), primo);
  EXPECT_EQ(Cerca(9, "1. uno - 2. due."), terzo);
  EXPECT_EQ(Cerca(10, "usura"), primo);
  EXPECT_EQ(Cerca(11, "desueto"), secondoEQuarto);
  EXPECT_EQ(Cerca(12, "!"), "");
  EXPECT_EQ(Cerca(13, "!"), "");
  EXPECT_EQ(Cerca(14, "AB002"), terzo);
  EXPECT_EQ(Cerca(15, "00002"), primo);

  Cancella();
  EXPECT_EQ(Righe("IDDocumento IDRifBibl", "TabDocumento"), "1|1\n2|4\n4|5");
  EXPECT_EQ(Righe("IDDoc IDClass", "LegameDocClass"), "1|1\n1|2\n1|3\n3|4");
  EsportaEConfronta("giornata.isis");
}

}  // namespace
}  // namespace torvi
