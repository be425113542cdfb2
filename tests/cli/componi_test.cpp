#include <gtest/gtest.h>

#include <QJsonDocument>

#include "comune/cartella_di_prova.h"
#include "comune/citazioni.h"
#include "programma.h"

namespace torvi {
namespace {

class Componi : public testing::Test {
 protected:
  Componi() { AggiungiAttiCitati(cartella_.NuovaConsegna()); }
  [[nodiscard]] EsitoProgramma Esegui(const QString& forma, const QByteArray& ingresso) const {
    return Torvi({"componi", forma, Archivio()}, {}, ingresso);
  }
  [[nodiscard]] QString Archivio() const { return cartella_.Mdb("A01.MDB"); }

  CartellaDiProva cartella_;
};

TEST_F(Componi, AnswersEveryLineAsTheTablesHaveIt) {
  const QByteArray prima = Byte(Archivio());
  for (const auto& [forma, file] : {std::pair{"interna", "citazioni_interne.jsonl"},
                                    std::pair{"altra", "citazioni_altre.jsonl"}}) {
    const QList<Citazione> citazioni = LeggiCitazioni(file);
    QByteArray ingresso;
    for (const Citazione& citazione : citazioni)
      ingresso += QByteArray::fromStdString(Mostra(citazione.richiesta) + "\n\n");
    const EsitoProgramma esito = Esegui(forma, ingresso);
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.errori, QString());
    const QStringList risposte = esito.uscita.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(risposte.size(), citazioni.size());
    for (qsizetype i = 0; i < risposte.size(); ++i) {
      const QJsonObject risposta = QJsonDocument::fromJson(risposte.at(i).toUtf8()).object();
      EXPECT_EQ(Mostra(Ridotta(risposta)), Mostra(citazioni.at(i).attesa))
          << file << ":" << citazioni.at(i).riga;
    }
  }
  EXPECT_EQ(Byte(Archivio()), prima);
}

// A script that reads answers by their fields finds every one of them, empty ones too.
TEST_F(Componi, WritesAllFieldsOfARow) {
  const EsitoProgramma esito =
      Esegui("interna", R"({"controlli":{"indice":2,"ComboFonte":"Legge costituzionale"}})");
  EXPECT_EQ(esito.uscita.toStdString(),
            R"({"messaggi":[],"riga":{"Allegato":"","Altro":"","Amministrazione":"","Anno":"",)"
            R"("Articolo":"","Autorita":"","Cancellata":false,"Citta":"","Comma":"",)"
            R"("Decreto":false,"FonteNorm":"l. cost.","Giorno":"","IDFonte":0,"Lettera":"",)"
            R"("Marca":false,"Mese":"","Ministero":"","Numero":"","NumeroP":"",)"
            R"("Ordinanza":false,"Provincia":"","Regione":"","RipA":"","RipC":"","Sezione":"",)"
            R"("Stato":"","TP":"LICO","Testo":"l. cost."},"risultato":1})"
            "\n");
}

TEST_F(Componi, StopsAtALineThatIsNoObject) {
  for (const QByteArray& guasta : {QByteArray("{\"controlli\": "), QByteArray("[1]"),
                                   QByteArray("art. 1 c.c."), QByteArray("{} {}")}) {
    const EsitoProgramma esito = Esegui("altra", "{}\n\n" + guasta + "\n{}\n");
    EXPECT_EQ(esito.codice, 1) << guasta.toStdString();
    EXPECT_EQ(esito.errori, "La riga 3 non è un oggetto JSON\n");
    EXPECT_EQ(esito.uscita.count(u'\n'), 1);
  }
}

}  // namespace
}  // namespace torvi
