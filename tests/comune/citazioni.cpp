#include "comune/citazioni.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "archive/csv.h"
#include "archive/master.h"
#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

QJsonObject Oggetto(const QByteArray& linea) {
  QJsonParseError guasto;
  const QJsonDocument documento = QJsonDocument::fromJson(linea, &guasto);
  EXPECT_TRUE(documento.isObject()) << linea.toStdString() << guasto.errorString().toStdString();
  return documento.object();
}

bool Usuale(const QString& nome, const QJsonValue& valore) {
  static const QJsonArray vuoti{QJsonValue(), QString(), false, QJsonArray()};
  static const QJsonObject usuali{{"risultato", 1}, {"pulsanti", "OK"}, {"IDFonte", 0}};
  return vuoti.contains(valore) || usuali.value(nome) == valore;
}

// The acts that every new archive lists.
void CopiaAtti(const Database& archivio) {
  const UnitaDiScrittura unita(archivio);
  for (const auto& [tabella, nome] : {std::pair{"TabFonteInterna", "FonteNorm"},
                                      {"TabFonteInt", "FonteInt"},
                                      {"TabFonteCom", "FonteCom"},
                                      {"TabFonteCan", "FonteCan"}}) {
    LettoreCsv righe(CartellaDati() + '/' + tabella + ".csv");
    QList<Campo> celle;
    const auto cella = [&](const char* colonna) {
      return celle.at(righe.Colonne().indexOf(colonna));
    };
    while (righe.Leggi(celle)) {
      if (righe.Colonne().contains("liv1")) {
        Aggiungi(archivio, tabella,
                 {{nome, cella(nome)}, {"liv1", cella("liv1")}, {"liv2", cella("liv2")}});
      } else {
        Aggiungi(archivio, tabella,
                 {{nome, cella(nome)}, {"Tipo", cella("Tipo").TestoOVuoto().toInt()}});
      }
    }
  }
}

}  // namespace

QList<Citazione> LeggiCitazioni(const QString& nome) {
  QList<Citazione> citazioni;
  int numero = 0;
  bool domanda = true;
  for (const QByteArray& linea : Byte(FileProgetto("tests/dati/" + nome)).split('\n')) {
    ++numero;
    if (linea.isEmpty() || linea.startsWith('#')) continue;
    if (domanda) citazioni += {numero, Oggetto(linea), {}};
    if (!domanda) citazioni.last().attesa = Oggetto(linea);
    domanda = !domanda;
  }
  EXPECT_FALSE(citazioni.isEmpty());
  return citazioni;
}

QJsonObject Ridotta(const QJsonObject& risposta) {
  QJsonObject ridotta;
  for (auto voce = risposta.begin(); voce != risposta.end(); ++voce) {
    QJsonValue valore = voce.value();
    if (valore.isObject()) valore = Ridotta(valore.toObject());
    if (valore.isArray()) {
      QJsonArray parti;
      for (const auto parte : valore.toArray()) parti += Ridotta(parte.toObject());
      valore = parti;
    }
    if (!Usuale(voce.key(), valore)) ridotta.insert(voce.key(), valore);
  }
  return ridotta;
}

std::string Mostra(const QJsonObject& oggetto) {
  return QJsonDocument(oggetto).toJson(QJsonDocument::Compact).toStdString();
}

void AggiungiAttiCitati(const Database& archivio) {
  const QString trattati = "TabNIT";
  Aggiungi(archivio, trattati,
           {{"nit", "Conv."},
            {"fonte", "Conv. Alfa 1950"},
            {"numero", "848"},
            {"descrizione", "Diritti \"dell'uomo\""},
            {"data", "05/08/1955"}});
  Aggiungi(archivio, trattati, {{"fonte", "Tratt. Beta"}});
  Aggiungi(archivio, trattati, {{"nit", "Acc."}, {"fonte", "Acc. Gamma"}, {"data", "15/12/1999"}});
  CopiaAtti(archivio);
  // Both levels, and the name.
  for (const QString& atto :
       QString("23st.|27circ.|29del.|28d.g.p.|28D.R.|28reg. p.|21 l. |37trib. ACQUE|"
               "34commissione tributaria provinciale|37Comm. Brevetti|37Comm. brevetti e acque")
           .split('|')) {
    Aggiungi(archivio, "TabFonteInterna",
             {{"FonteNorm", atto.mid(2)}, {"liv1", atto.left(1)}, {"liv2", atto.mid(1, 1)}});
  }
  Aggiungi(archivio, "TabFonteInt", {{"FonteInt", "Ris.  ONU "}, {"Tipo", 2}});
  for (const char* atto : {"reg. ue", "Ris. CECA"}) {
    Aggiungi(archivio, "TabFonteCom", {{"FonteCom", atto}, {"Tipo", 2}});
  }
  Aggiungi(archivio, "TabFonteCan", {{"FonteCan", "Rota rom."}, {"Tipo", 3}});
}

}  // namespace torvi
