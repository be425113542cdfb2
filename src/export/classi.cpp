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
                    LegamiInOrdine& legami) {
  QStringList coppie;
  for (; !legami.Finiti(); legami.Avanti()) {
    coppie += Coppia(contesto, idDoc, idRecord, legami.Riga());
  }
  return coppie.join(kSeparatore);
}

QString LeggiCodici(LegamiInOrdine& legami) {
  QStringList codici;
  for (; !legami.Finiti(); legami.Avanti()) codici += legami.Riga().Fields("Codice").Testo();
  return codici.join(kSeparatore);
}

}  // namespace

QString LeggiClassi(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  const bool dopo2000 = contesto.stato.Dopo2000;
  LegamiInOrdine& legami = dopo2000 ? contesto.legami.classi : contesto.legami.classi1999;
  legami.Cerca(idDoc);
  if (legami.Finiti()) {
    SegnalaMancanza(contesto, idDoc, idRecord);
    return {};
  }
  return dopo2000 ? LeggiCoppie(contesto, idDoc, idRecord, legami) : LeggiCodici(legami);
}

QString PuntaCodice(const QString& codice) {
  QString punteggiato = codice.left(1);
  for (const QChar c : QStringView(codice).mid(1)) punteggiato += c + "."_L1;
  return punteggiato;
}

}  // namespace torvi
