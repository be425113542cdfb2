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

// Code and descriptor of one row of the scheme 2000.
std::unique_ptr<CoppiaClasse> LeggiCoppia(ContestoEsportazione& contesto, qint64 idClasse) {
  const Recordset riga = contesto.stato.DbArchivio.OpenRecordset(
      QStringLiteral("select * from tabClasse2000, [tabClasse2000-S] where "
                     "tabClasse2000.IDClasse2000 = ? and [tabClasse2000-S].IDCLasseS = "
                     "tabClasse2000.[IDCLasse2000-S]"),
      {idClasse});
  if (riga.Eof()) return nullptr;
  auto coppia = std::make_unique<CoppiaClasse>(CoppiaClasse{riga.Fields("CodiceS").Testo(), {}});
  const Campo idDescrittore = riga.Fields("IDClasse2000-D");
  const bool asterisco = idDescrittore.Nullo() || idDescrittore.Intero() == 0;
  const Campo descrittore =
      asterisco ? riga.Fields("Classe2000-D")
                : contesto.codici.Cerca("tabClasse2000-D", idDescrittore).Fields("CodiceD");
  if (asterisco && !descrittore.Presente()) return coppia;
  coppia->codici += QLatin1Char(';') + descrittore.Testo();
  coppia->messaggio = MessaggioCoppia(riga.Fields("Check").TestoOVuoto(), asterisco);
  return coppia;
}

QStringList LeggiCoppie(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  const auto leggi = [&contesto](qint64 idClasse) { return LeggiCoppia(contesto, idClasse); };
  LegamiInOrdine& legami = contesto.legami.classi;
  QStringList coppie;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    const auto coppia = contesto.coppieClasse.Cerca(legami.Riga().Fields("IDClass"), leggi);
    if (coppia == nullptr) continue;
    coppie += coppia->codici;
    if (coppia->messaggio.isEmpty()) continue;
    contesto.fileErrClasse.Print(coppia->messaggio + idRecord + ", record="_L1 +
                                 QString::number(idDoc) + "): "_L1 + coppia->codici);
  }
  return coppie;
}

QStringList LeggiCodici(ContestoEsportazione& contesto, qint64 idDoc) {
  LegamiInOrdine& legami = contesto.legami.classi1999;
  QStringList codici;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    codici += legami.Riga().Fields("Codice").Testo();
  }
  return codici;
}

}  // namespace

QString LeggiClassi(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  const QStringList codici = contesto.stato.Dopo2000 ? LeggiCoppie(contesto, idDoc, idRecord)
                                                     : LeggiCodici(contesto, idDoc);
  if (codici.isEmpty()) SegnalaMancanza(contesto, idDoc, idRecord);
  return codici.join(kSeparatore);
}

QString PuntaCodice(const QString& codice) {
  QString punteggiato = codice.left(1);
  for (const QChar c : QStringView(codice).mid(1)) punteggiato += c + "."_L1;
  return punteggiato;
}

}  // namespace torvi
