#include "export/classi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QLatin1Char kSeparatore('\\');

void ScriviClassi1999(ContestoEsportazione& contesto, bool conCodice) {
  QStringList classi;
  for (const QString& codice : contesto.CodiciClasse.split(kSeparatore)) {
    QString classe = PuntaCodice(codice) + QLatin1Char(' ');
    if (conCodice) classe += codice + QLatin1Char(' ');
    classi += classe + contesto.condivise.descrizioni1999.Cerca(codice);
  }
  contesto.record.AggiungiTesto(tag::kClassi1999, classi.join(kSeparatore));
}

}  // namespace

void ScriviClassiStorico(ContestoEsportazione& contesto) {
  if (!contesto.stato.Dopo2000) {
    ScriviClassi1999(contesto, false);
    return;
  }
  QStringList classi;
  for (const QString& pezzo : contesto.CodiciClasse.split(kSeparatore)) {
    const CoppiaDecodificata& coppia =
        contesto.condivise.coppie.Cerca(contesto.condivise.codici, pezzo);
    classi += coppia.sigla + QLatin1Char('|') + coppia.descrizione + coppia.descrittore;
  }
  contesto.record.AggiungiTesto(tag::kClassiStorico, classi.join(kSeparatore));
}

void ScriviClassiCassazione(ContestoEsportazione& contesto) {
  if (!contesto.stato.Dopo2000) {
    ScriviClassi1999(contesto, true);
    return;
  }
  QString classi;
  QString ultimo;
  for (const QString& pezzo : contesto.CodiciClasse.split(kSeparatore)) {
    const CoppiaDecodificata& coppia =
        contesto.condivise.coppie.Cerca(contesto.condivise.codici, pezzo);
    if (coppia.codice != ultimo) {
      if (!classi.isEmpty()) classi += kSeparatore;
      classi += coppia.sigla + QLatin1Char(' ') + coppia.descrizione;
    }
    classi += coppia.descrittore;
    ultimo = coppia.codice;
  }
  contesto.record.AggiungiTesto(tag::kClassiCassazione, classi);
}

}  // namespace torvi
