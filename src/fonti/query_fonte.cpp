#include "fonti/query_fonte.h"

#include "fonti/riferimenti_fonte.h"
#include "fonti/tavole_fonte.h"
#include "shell/valori.h"

namespace torvi {
namespace {

// One value more to compare; a quote in it can't end the literal.
QString E(const char* colonna, const QString& valore) {
  return QStringLiteral(" and ") + QLatin1String(colonna) + QStringLiteral(" = ") +
         Letterale(valore);
}

QString E(const char* colonna, qint64 chiave) {
  return QStringLiteral(" and ") + QLatin1String(colonna) + QStringLiteral(" = ") +
         QString::number(chiave);
}

}  // namespace

QString QueryFonte(StatoGlobale& stato, Dialoghi& dialoghi, const RigaFonte& riga) {
  QString istruzione = QStringLiteral("select * from tabFonte where Testo = ");
  istruzione += Letterale(riga.Testo) + E("TP", riga.TP);
  for (const auto& [colonna, campo] : ColonneFonte()) istruzione += E(colonna, riga.*campo);
  istruzione += E("mese", NumeroMese(riga.Mese)) + E("altro", riga.Altro);
  const RiferimentiFonte riferimenti = CercaRiferimenti(stato, dialoghi, riga);
  if (riferimenti.catalogo) istruzione += E("IDFonte", *riferimenti.catalogo);
  for (const auto& [colonna, chiave] : riferimenti.nomi) istruzione += E(colonna, chiave);
  return istruzione;
}

}  // namespace torvi
