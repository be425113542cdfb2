#include "export/classi.h"

#include "export/una_riga.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

const QLatin1Char kSeparatore('\\');

void SegnalaMancanza(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  contesto.fileErrori.Print("Manca classificazione: "_L1 + idRecord + ", record="_L1 +
                            QString::number(idDoc));
}

QStringList LeggiCoppie(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord) {
  LegamiInOrdine& legami = contesto.legami.classi;
  QStringList coppie;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    const CoppiaClasse* coppia =
        contesto.condivise.coppieClasse.Cerca(legami.Riga().Fields("IDClass"));
    if (coppia == nullptr) continue;
    coppie += coppia->codici;
    if (coppia->messaggio.isEmpty()) continue;
    contesto.fileErrClasse.Print(coppia->messaggio + idRecord + ", record="_L1 +
                                 QString::number(idDoc) + "): "_L1 + UnaRiga(coppia->codici));
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
