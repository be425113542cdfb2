#include "export/coppie_classe.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// The message that a pair of this state raises; empty where there is none.
QString MessaggioCoppia(const QString& check, bool asterisco) {
  if (!asterisco) {
    return check == "1"_L1 ? QStringLiteral("Coppia non valida (") : QString();
  }
  if (check == "2"_L1) return QStringLiteral("Coppia asteriscata valida (");
  if (check == "3"_L1) return QStringLiteral("Coppia asteriscata non valida (");
  return {};
}

const RigheCondivise kCoppie = {
    .istruzione = QStringLiteral(
        "select * from tabClasse2000, "
        "[tabClasse2000-S] where [tabClasse2000-S].IDCLasseS = tabClasse2000.[IDCLasse2000-S]"),
    .condizione = QStringLiteral(" and tabClasse2000.IDClasse2000 = ?"),
    .chiave = "IDClasse2000"};

CoppiaClasse ComponiCoppia(const Recordset& riga, TabelleDiCodici& codici) {
  CoppiaClasse coppia = {.codici = riga.Fields("CodiceS").Testo(), .messaggio = {}};
  const Campo idDescrittore = riga.Fields("IDClasse2000-D");
  const bool asterisco = idDescrittore.Nullo() || idDescrittore.Intero() == 0;
  const Campo descrittore =
      asterisco ? riga.Fields("Classe2000-D")
                : codici.Cerca(TavolaCodici::Descrittore, idDescrittore).Fields("CodiceD");
  if (asterisco && !descrittore.Presente()) return coppia;
  coppia.codici += QLatin1Char(';') + descrittore.Testo();
  coppia.messaggio = MessaggioCoppia(riga.Fields("Check").TestoOVuoto(), asterisco);
  return coppia;
}

}  // namespace

CoppieClasse::CoppieClasse(const Database& archivio, TabelleDiCodici& codici)
    : note_(archivio, kCoppie,
            [&codici](const Recordset& riga) { return ComponiCoppia(riga, codici); }) {}

}  // namespace torvi
