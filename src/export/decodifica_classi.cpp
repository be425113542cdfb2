#include "export/classi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QLatin1Char kSeparatore('\\');

// One code of the scheme before 2000: its own row, with that of its parent unless it stands at the
// top.
Recordset ApriCodice1999(const Database& archivio, const QString& codice, bool principale) {
  if (principale) {
    return archivio.OpenRecordset(
        QStringLiteral("SELECT TabClasse1999.CODICE, TabClasse1999.DESCRIZIONE FROM TabClasse1999 "
                       "WHERE TabClasse1999.CODICE = ?"),
        {codice});
  }
  return archivio.OpenRecordset(
      QStringLiteral("SELECT TabClasse1999.CODICE, TabClasse1999.DESCRIZIONE, "
                     "TabClasse1999_1.CODICE AS CODICE_P, TabClasse1999_1.DESCRIZIONE AS "
                     "DESCRIZIONE_P FROM TabClasse1999 inner JOIN TabClasse1999 AS TabClasse1999_1 "
                     "ON TabClasse1999.ID_PADRE = TabClasse1999_1.IDClasse1999 WHERE "
                     "TabClasse1999.CODICE = ?"),
      {codice});
}

bool Principale(const QString& codice) {
  return codice.size() == 2 || (codice.size() == 3 && codice.left(2).toUpper() == "D9"_L1);
}

// "(Descrizione)", or "(Padre: Descrizione)".
QString LeggiDescrizione1999(const Database& archivio, const QString& codice) {
  const bool principale = Principale(codice);
  const Recordset riga = ApriCodice1999(archivio, codice, principale);
  QString descrizione = riga.Fields("descrizione").Testo();
  if (!principale) {
    descrizione = riga.Fields("descrizione_p").Testo() + ": "_L1 + descrizione;
  }
  return QLatin1Char('(') + descrizione + QLatin1Char(')');
}

const QString& Descrizione1999(ContestoEsportazione& contesto, const QString& codice) {
  auto nota = contesto.descrizioni1999.find(codice);
  if (nota == contesto.descrizioni1999.end()) {
    nota = contesto.descrizioni1999.insert(codice,
                                           LeggiDescrizione1999(contesto.stato.DbArchivio, codice));
  }
  return *nota;
}

void ScriviClassi1999(ContestoEsportazione& contesto, bool conCodice) {
  QStringList classi;
  for (const QString& codice : contesto.CodiciClasse.split(kSeparatore)) {
    QString classe = PuntaCodice(codice) + QLatin1Char(' ');
    if (conCodice) classe += codice + QLatin1Char(' ');
    classi += classe + Descrizione1999(contesto, codice);
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
    const CoppiaDecodificata& coppia = contesto.coppie.Cerca(contesto.codici, pezzo);
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
    const CoppiaDecodificata& coppia = contesto.coppie.Cerca(contesto.codici, pezzo);
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
