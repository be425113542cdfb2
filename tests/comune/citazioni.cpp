#include "comune/citazioni.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

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

void AggiungiTrattati(const Database& archivio) {
  const QString trattati = "TabNIT";
  Aggiungi(archivio, trattati,
           {{"nit", "Conv."},
            {"fonte", "Conv. Alfa 1950"},
            {"numero", "848"},
            {"descrizione", "Diritti \"dell'uomo\""},
            {"data", "05/08/1955"}});
  Aggiungi(archivio, trattati, {{"fonte", "Tratt. Beta"}});
  Aggiungi(archivio, trattati, {{"nit", "Acc."}, {"fonte", "Acc. Gamma"}, {"data", "15/12/1999"}});
}

}  // namespace torvi
