#include "report/stampa_html.h"

#include "consegna_fonti.h"

namespace torvi {
namespace {

class StampaHtml : public ConsegnaFonti {
 protected:
  // A kind of EU source.
  qint64 Genere(const Campo& settore, const char* codice, const Campo& anno = {}) const {
    return Aggiungi(stato.DbArchivio, "TabFonteCom",
                    {{"Settore", settore}, {"Codice", codice}, {"AnnoF", anno}});
  }
  void Compila() const {
    const qint64 trattato = Genere("1", "E", "2002");
    const qint64 regolamento = Genere("3", "R");
    const qint64 corte = Genere("6", "J");
    const qint64 proposta = Genere({}, "X");
    const qint64 accordo = Genere("", "X");

    const qint64 primo = Documento("L'attività \xe2\x80\x9clibera\xe2\x80\x9d");
    Fonte(primo, {{"TP", "NIC"},
                  {"fonte", regolamento},
                  {"testo", "reg. n. 12/2001"},
                  {"anno", "2001"},
                  {"numero", "12"}});
    Fonte(primo, {{"TP", "NIL"}, {"fonte", regolamento}, {"testo", "altra"}});
    Fonte(
        primo,
        {{"TP", "GEC"}, {"fonte", corte}, {"testo", "C. giust. CE"}, {"altro", "causa C-123/99"}});
    Documento("Senza fonti");
    const qint64 terzo = Documento();
    Fonte(terzo, {{"TP", "NIC"}, {"fonte", trattato}, {"testo", "art. 12A"}, {"articolo", "12A"}});
    Fonte(terzo, {{"TP", "NIC"}, {"fonte", trattato}, {"testo", "senza articolo"}});
    Fonte(terzo, {{"TP", "GEC"}, {"fonte", corte}, {"testo", "senza causa"}});
    const qint64 quarto = Documento("Nessun settore");
    Fonte(quarto, {{"TP", "NIC"}, {"fonte", proposta}, {"testo", "Null"}});
    Fonte(quarto, {{"TP", "GEC"}, {"fonte", accordo}, {"testo", "vuoto"}});

    Fonte(quarto, {{"TP", "GEI"},
                   {"fonte", 2},
                   {"testo", "CEDU 1"},
                   {"altro", "Corte eur. dir. uomo (Rossi e Bianchi et al. c. Italia c. Malta)"}});
    Fonte(quarto, {{"TP", "GEI"}, {"fonte", 2}, {"testo", "CEDU 2"}, {"altro", "senza parti"}});
    Fonte(quarto, {{"TP", "GEI"}, {"fonte", 3}, {"testo", "altra corte"}, {"altro", "(A c. B)"}});
    Cita(primo, 9);  // CEDU 1 once more
  }
  [[nodiscard]] QString Marcatore() const {
    return stato.DbArchivio.OpenRecordset("TabInfo").Fields("CELEX").TestoOVuoto();
  }
};

const QStringList kTesta = {"<HTML>",  "<HEAD>", "<TITLE>Consegna A01</TITLE>",
                            "</HEAD>", "<BODY>", "<h1>Consegna A01</h1>"};
const QStringList kCoda = {"</BODY>", "</HTML>"};

QString Celex(const char* testo, const char* numero) {
  return QStringLiteral(
             "%1 ---> <A HREF=\"https://celex.example/LexUriServ/LexUriServ.do?uri=CELEX:%2:IT:NOT"
             "\"><U><FONT SIZE=\"2\" COLOR=\"#0000ff\">[recupera via CELEX]</U></FONT></A><br>")
      .arg(testo, numero);
}

QString Hudoc(const char* testo, const char* parti) {
  return QStringLiteral(
             "%1 ---> <A target=\"new\" HREF='https://hudoc.echr.coe.int/eng#{\"docname\":[\"%2\"]}"
             "'><U><FONT SIZE=\"2\" COLOR=\"#0000ff\">[recupera via HUDOC]</U></FONT></A><br>")
      .arg(testo, parti);
}

TEST_F(StampaHtml, WritesEachSourceWithItsLink) {
  Compila();
  ScriviByte(cartella.Percorso() + "/torvieditor.INI", "IndirizzoCelex=https://celex.example\n");
  StampaHTMLCelex(stato, dialoghi);
  EXPECT_EQ(Dump("stampaHTML A01.htm").toStdString(),
            Righe(kTesta +
                  QStringList{
                      "<hr size=\"1\"/>", "<h2>Record: 1</h2>", "<h3>L'attività “libera”</h3>",
                      Celex("reg. n. 12/2001", "32001R0012"), Celex("C. giust. CE", "61999CJ0123"),
                      "<hr size=\"1\"/>", "<h2>Record: 3</h2>", Celex("art. 12A", "12002E012A"),
                      Celex("senza causa", " "), "<hr size=\"1\"/>", "<h2>Record: 4</h2>",
                      "<h3>Nessun settore</h3>"} +
                  kCoda)
                .toStdString());
  EXPECT_EQ(Marcatore(), "1");

  StampaHTMLHudoc(stato, dialoghi);
  EXPECT_EQ(
      Dump("stampaHTML_GEI A01.htm").toStdString(),
      Righe(kTesta +
            QStringList{"<hr size=\"1\"/>", "<h2>Record: 1</h2>", "<h3>L'attività “libera”</h3>",
                        Hudoc("CEDU 1", "Rossi and Bianchi and others "), "<hr size=\"1\"/>",
                        "<h2>Record: 4</h2>", "<h3>Nessun settore</h3>",
                        Hudoc("CEDU 1", "Rossi and Bianchi and others "), Hudoc("CEDU 2", "")} +
            kCoda)
          .toStdString());
  EXPECT_EQ(dialoghi.Messaggi().join('|'),
            "Fine stampa HTML (consegna A01)|Fine stampa HTML_ GEI (consegna A01)");
  EXPECT_FALSE(dialoghi.InAttesa());
}

TEST_F(StampaHtml, NoValueBreaksAPage) {
  stato.DbArchivio.Execute("update TabInfo set Consegna = \"R&S\"");
  const qint64 corte = Genere("3", "<R>");
  const qint64 documento = Documento("a < b & c > \"d\"");
  Fonte(documento, {{"TP", "NIC"}, {"fonte", corte}, {"testo", "<i>&"}, {"anno", "2\"'"}});
  Fonte(documento, {{"TP", "GEI"},
                    {"fonte", 2},
                    {"testo", "D'Amico & F."},
                    {"altro", "CEDU (D'Amico \"&\" <F> \\ c. Italia)"}});
  StampaHTMLCelex(stato, dialoghi);
  StampaHTMLHudoc(stato, dialoghi);
  const QByteArray celex = Dump("stampaHTML R&S.htm");
  EXPECT_TRUE(celex.contains("<TITLE>Consegna R&amp;S</TITLE>\r\n") &&
              celex.contains("<h1>Consegna R&amp;S</h1>\r\n") &&
              celex.contains("<h3>a &lt; b &amp; c > \"d\"</h3>\r\n") &&
              celex.contains("\r\n&lt;i>&amp; ---> <A HREF=") &&
              celex.contains("CELEX:32&quot;&#39;&lt;R>0000:IT:NOT\">"))
      << celex.toStdString();
  const QByteArray hudoc = Dump("stampaHTML_GEI R&S.htm");
  EXPECT_TRUE(hudoc.contains("\r\nD'Amico &amp; F. ---> ") &&
              hudoc.contains("[\"D&#39;Amico \\&quot;&amp;\\&quot; &lt;F> \\\\ \"]}'>"))
      << hudoc.toStdString();
}

TEST_F(StampaHtml, ADeliveryWithoutSuchSourcesLeavesAnEmptyFile) {
  ScriviByte(cartella.Dump("stampaHTML A01.htm"), "prima");
  StampaHTMLHudoc(stato, dialoghi);
  EXPECT_EQ(Marcatore(), "");
  StampaHTMLCelex(stato, dialoghi);
  EXPECT_EQ(Marcatore(), "1");
  EXPECT_EQ(Dump("stampaHTML A01.htm") + Dump("stampaHTML_GEI A01.htm"), "");
  InBatch();
  StampaHTMLCelex(stato, dialoghi);
  StampaHTMLHudoc(stato, dialoghi);
  EXPECT_EQ(Dump("comune.lst"), "\r\n\r\n");
}

TEST_F(StampaHtml, ABatchAppendsToTheCommonFile) {
  Compila();
  StampaHTMLHudoc(stato, dialoghi);
  InBatch();
  ScriviByte(stato.FileBatch, "prima\r\n");
  StampaHTMLHudoc(stato, dialoghi);
  EXPECT_EQ(Dump("comune.lst"), "prima\r\n" + Dump("stampaHTML_GEI A01.htm") + "\r\n");
}

}  // namespace
}  // namespace torvi
