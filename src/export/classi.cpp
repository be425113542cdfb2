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
class LettoreCoppie {
 public:
  LettoreCoppie(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord)
      : contesto_(contesto),
        idDoc_(idDoc),
        idRecord_(idRecord),
        descrittori_(contesto.stato.DbArchivio.OpenRecordset(QStringLiteral("tabClasse2000-D"))) {
    descrittori_.Index("PrimaryKey");
  }

  [[nodiscard]] QString Coppia(const Recordset& riga) {
    const QString codice = riga.Fields("CodiceS").Testo();
    const Campo idDescrittore = riga.Fields("IDClasse2000-D");
    if (!idDescrittore.Nullo() && idDescrittore.Intero() != 0) {
      descrittori_.Seek(idDescrittore);
      return Unisci(riga, codice, descrittori_.Fields("CodiceD").Testo(), false);
    }
    const Campo libero = riga.Fields("Classe2000-D");
    return libero.Presente() ? Unisci(riga, codice, libero.Testo(), true) : codice;
  }

 private:
  QString Unisci(const Recordset& riga, const QString& codice, const QString& descrittore,
                 bool asterisco) {
    QString coppia = codice + QLatin1Char(';') + descrittore;
    const QString messaggio = MessaggioCoppia(riga.Fields("Check").TestoOVuoto(), asterisco);
    if (!messaggio.isEmpty()) {
      contesto_.fileErrClasse.Print(messaggio + idRecord_ + ", record="_L1 +
                                    QString::number(idDoc_) + "): "_L1 + coppia);
    }
    return coppia;
  }

  ContestoEsportazione& contesto_;
  qint64 idDoc_;
  const QString& idRecord_;
  Recordset descrittori_;
};

QString LeggiCoppie(ContestoEsportazione& contesto, qint64 idDoc, const QString& idRecord,
                    Recordset& riga) {
  LettoreCoppie lettore(contesto, idDoc, idRecord);
  QStringList coppie;
  for (; !riga.Eof(); riga.MoveNext()) coppie += lettore.Coppia(riga);
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
