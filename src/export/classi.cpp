#include "export/classi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QLatin1Char kSeparatore('\\');

void SegnalaMancanza(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  contesto.fileErrori.Print("Manca classificazione: "_L1 + idRecord + ", record="_L1 +
                            QString::number(idDoc));
}

// The message that a pair of this state raises; empty where there is none.
QString MessaggioCoppia(const QString& check, bool asterisco) {
  if (!asterisco) {
    return check == "1"_L1 ? QStringLiteral("Coppia non valida (") : QString();
  }
  if (check == "2"_L1) return QStringLiteral("Coppia asteriscata valida (");
  if (check == "3"_L1) return QStringLiteral("Coppia asteriscata non valida (");
  return {};
}

// Code and descriptor of one row of the scheme 2000, reported if need be.
QString Coppia(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord,
               const Recordset& riga) {
  const QString codice = riga.Fields("CodiceS").Testo();
  const Campo idDescrittore = riga.Fields("IDClasse2000-D");
  const bool asterisco = idDescrittore.Nullo() || idDescrittore.Intero() == 0;
  const Campo descrittore =
      asterisco ? riga.Fields("Classe2000-D")
                : contesto.codici.Cerca("tabClasse2000-D", idDescrittore).Fields("CodiceD");
  if (asterisco && !descrittore.Presente()) return codice;
  QString coppia = codice + QLatin1Char(';') + descrittore.Testo();
  const QString messaggio = MessaggioCoppia(riga.Fields("Check").TestoOVuoto(), asterisco);
  if (!messaggio.isEmpty()) {
    contesto.fileErrClasse.Print(messaggio + idRecord + ", record="_L1 + QString::number(idDoc) +
                                 "): "_L1 + coppia);
  }
  return coppia;
}

QString LeggiCoppie(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord,
                    Recordset& riga) {
  QStringList coppie;
  for (; !riga.Eof(); riga.MoveNext()) coppie += Coppia(contesto, idDoc, idRecord, riga);
  return coppie.join(kSeparatore);
}

QString LeggiCodici(Recordset& riga) {
  QStringList codici;
  for (; !riga.Eof(); riga.MoveNext()) codici += riga.Fields("Codice").Testo();
  return codici.join(kSeparatore);
}

}  // namespace

QString LeggiClassi(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  const bool dopo2000 = contesto.stato.Dopo2000;
  Recordset riga = contesto.stato.DbArchivio.OpenRecordset(
      dopo2000 ? QStringLiteral("select * from legameDocClass, tabClasse2000, [tabClasse2000-S] "
                                "where legameDocClass.IDDoc = ? and legameDocClass.IDClass = "
                                "tabClasse2000.IDClasse2000 and [tabClasse2000-S].IDCLasseS = "
                                "tabClasse2000.[IDCLasse2000-S]")
               : QStringLiteral("select * from legameDocClass1999, tabClasse1999 where "
                                "legameDocClass1999.IDDoc = ? and legameDocClass1999.IDClass = "
                                "tabClasse1999.IDClasse1999"),
      {idDoc});
  if (riga.Eof()) {
    SegnalaMancanza(contesto, idDoc, idRecord);
    return {};
  }
  return dopo2000 ? LeggiCoppie(contesto, idDoc, idRecord, riga) : LeggiCodici(riga);
}

QString PuntaCodice(const QString& codice) {
  QString punteggiato = codice.left(1);
  for (const QChar c : QStringView(codice).mid(1)) punteggiato += c + "."_L1;
  return punteggiato;
}

}  // namespace torvi
