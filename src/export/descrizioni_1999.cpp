#include "export/descrizioni_1999.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

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

}  // namespace

const QString& Descrizioni1999::Cerca(const QString& codice) {
  auto nota = note_.constFind(codice);
  if (nota == note_.constEnd()) {
    nota = note_.insert(codice, LeggiDescrizione1999(archivio_, codice));
  }
  return *nota;
}

}  // namespace torvi
