#include "fonti/trattati.h"

#include "archive/errore.h"
#include "shell/valori.h"

namespace torvi {
namespace {

const QString kSegno = QStringLiteral(") ");

QStringList Linee(Recordset& righe) {
  QStringList linee;
  for (; !righe.Eof(); righe.MoveNext()) {
    linee += righe.Fields("idnit").Testo() + kSegno + righe.Fields("fonte").TestoOVuoto();
  }
  return linee;
}

QString SenzaZeri(QString cifre) {
  while (cifre.startsWith(QLatin1Char('0'))) cifre.remove(0, 1);
  return cifre;
}

}  // namespace

QStringList ElencaNIT(Recordset& tabNIT) {
  if (!tabNIT.Bof() || !tabNIT.Eof()) tabNIT.MoveFirst();
  return Linee(tabNIT);
}

QStringList CercaNIT(const Database& archivio, ModoCampo modo, const QString& parole) {
  Recordset trovate =
      archivio.OpenRecordset(QStringLiteral("select * from tabNIT where ") +
                             CondizioneParole(QStringLiteral(" tabNIT.fonte"), modo, parole));
  return Linee(trovate);
}

Trattato LeggiTrattato(const Database& archivio, const QString& linea) {
  const qsizetype fine = linea.indexOf(kSegno);
  if (fine < 0) throw ErroreEsecuzione(Errore::ChiamataNonValida, linea);
  Recordset righe = archivio.OpenRecordset(QStringLiteral("TabNIT"));
  righe.Index("PrimaryKey");
  righe.Seek(Campo(linea.left(fine)).Intero());
  Trattato trattato{.nit = righe.Fields("nit").TestoOVuoto(),
                    .fonte = righe.Fields("fonte").TestoOVuoto(),
                    .numero = righe.Fields("numero").TestoOVuoto(),
                    .descrizione = righe.Fields("descrizione").TestoOVuoto(),
                    .giorno = {},
                    .mese = {},
                    .anno = {}};
  const QStringList data = righe.Fields("data").TestoOVuoto().split(QLatin1Char('/'));
  if (data.size() == 3) {
    QString mese = data.at(1);
    trattato.giorno = SenzaZeri(data.at(0));
    trattato.mese = NomeMese(mese);
    trattato.anno = data.at(2);
  }
  return trattato;
}

}  // namespace torvi
