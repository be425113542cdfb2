#include "classificazione/codici_classe.h"

namespace torvi {
namespace {

Recordset Cerca(const Database& archivio, QLatin1String tabella, const char* indice,
                const QString& codice) {
  Recordset righe = archivio.OpenRecordset(tabella);
  righe.Index(indice);
  righe.Seek(codice);
  return righe;
}

QString Istruzione1999(const QString& codice) {
  const QString condizione = QStringLiteral("WHERE TabClasse1999.CODICE = ") + Letterale(codice);
  if (CodiceRadice(codice)) {
    return QStringLiteral(
               "SELECT TabClasse1999.CODICE, TabClasse1999.DESCRIZIONE FROM TabClasse1999 ") +
           condizione;
  }
  return QStringLiteral(
             "SELECT TabClasse1999.CODICE, TabClasse1999.DESCRIZIONE, TabClasse1999_1.CODICE AS "
             "CODICE_P, TabClasse1999_1.DESCRIZIONE AS DESCRIZIONE_P "
             "FROM TabClasse1999 inner JOIN TabClasse1999 AS TabClasse1999_1 ON "
             "TabClasse1999.ID_PADRE = TabClasse1999_1.IDClasse1999 ") +
         condizione;
}

}  // namespace

std::optional<QString> DescrizioneSistematico(const Database& archivio, const QString& codice) {
  const Recordset righe = Cerca(archivio, QLatin1String("tabClasse2000-S"), "CodiceS", codice);
  if (righe.NoMatch()) return {};
  return righe.Fields("sigla").TestoOVuoto() + QStringLiteral(" - ") +
         righe.Fields("descrizione").TestoOVuoto();
}

std::optional<QString> DescrizioneDescrittore(const Database& archivio, const QString& codice) {
  const Recordset righe = Cerca(archivio, QLatin1String("tabClasse2000-D"), "CodiceD", codice);
  if (righe.NoMatch()) return {};
  return righe.Fields("descrizione").TestoOVuoto();
}

bool CodiceRadice(const QString& codice) {
  return codice.size() == 2 ||
         (codice.size() == 3 && codice.left(2).toUpper() == QLatin1String("D9"));
}

std::optional<Codice1999> CercaCodice1999(const Database& archivio, const QString& codice) {
  const Recordset righe = archivio.OpenRecordset(Istruzione1999(codice));
  if (righe.Eof()) return {};
  Codice1999 trovato{.descrizione = righe.Fields("DESCRIZIONE").TestoOVuoto(), .padre = {}};
  if (!CodiceRadice(codice)) {
    trovato.padre = righe.Fields("CODICE_P").TestoOVuoto() + QStringLiteral(" - ") +
                    righe.Fields("DESCRIZIONE_P").TestoOVuoto();
  }
  return trovato;
}

QStringList TerminiAsteriscati(const Database& archivio) {
  QStringList termini;
  Recordset righe =
      archivio.OpenRecordset(QStringLiteral("select distinct ND from TablegameDSA order by ND"));
  for (righe.MoveFirst(); !righe.Eof(); righe.MoveNext()) {
    termini += righe.Fields("ND").TestoOVuoto();
  }
  return termini;
}

QStringList CoppieAsteriscate(const Database& archivio) {
  QStringList coppie;
  Recordset righe =
      archivio.OpenRecordset(QStringLiteral("select * from tabLegameDSA order by ND"));
  for (; !righe.Eof(); righe.MoveNext()) {
    coppie += righe.Fields("NS").TestoOVuoto() + QStringLiteral(" --- ") +
              righe.Fields("ND").TestoOVuoto();
  }
  return coppie;
}

}  // namespace torvi
