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

// Code and descriptor of one row of the scheme 2000.
std::unique_ptr<CoppiaClasse> LeggiCoppia(const Database& archivio, TabelleDiCodici& codici,
                                          qint64 idClasse) {
  const Recordset riga = archivio.OpenRecordset(
      QStringLiteral("select * from tabClasse2000, [tabClasse2000-S] where "
                     "tabClasse2000.IDClasse2000 = ? and [tabClasse2000-S].IDCLasseS = "
                     "tabClasse2000.[IDCLasse2000-S]"),
      {idClasse});
  if (riga.Eof()) return nullptr;
  auto coppia = std::make_unique<CoppiaClasse>(CoppiaClasse{riga.Fields("CodiceS").Testo(), {}});
  const Campo idDescrittore = riga.Fields("IDClasse2000-D");
  const bool asterisco = idDescrittore.Nullo() || idDescrittore.Intero() == 0;
  const Campo descrittore = asterisco
                                ? riga.Fields("Classe2000-D")
                                : codici.Cerca("tabClasse2000-D", idDescrittore).Fields("CodiceD");
  if (asterisco && !descrittore.Presente()) return coppia;
  coppia->codici += QLatin1Char(';') + descrittore.Testo();
  coppia->messaggio = MessaggioCoppia(riga.Fields("Check").TestoOVuoto(), asterisco);
  return coppia;
}

}  // namespace

std::shared_ptr<CoppiaClasse> CoppieClasse::Cerca(const Campo& idClasse) {
  return note_.Cerca(idClasse,
                     [this](qint64 numero) { return LeggiCoppia(archivio_, codici_, numero); });
}

}  // namespace torvi
