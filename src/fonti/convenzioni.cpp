#include "fonti/convenzioni.h"

#include "archive/errore.h"
#include "archive/recordset.h"

namespace torvi {
namespace {

constexpr std::size_t kPosti = 11;
const QString kSegno = QStringLiteral(") ");

}  // namespace

QString VoceConvenzione() { return QStringLiteral("Conv. UE"); }

Convenzioni ElencaConvenzioni(const Database& archivio) {
  Convenzioni trovate;
  // 30 is the key of that kind of act in every archive.
  Recordset righe = archivio.OpenRecordset(
      QStringLiteral("select * from tabFonte where Fonte = 30 and TP = \"NIC\""));
  for (; !righe.Eof(); righe.MoveNext()) {
    if (trovate.valori.size() == kPosti) throw ErroreEsecuzione(Errore::IndiceNonValido);
    trovate.valori.push_back({.giorno = righe.Fields("giorno").TestoOVuoto(),
                              .mese = righe.Fields("mese").TestoOVuoto(),
                              .anno = righe.Fields("anno").TestoOVuoto(),
                              .numero = righe.Fields("numero").TestoOVuoto(),
                              .altro = righe.Fields("altro").TestoOVuoto()});
    trovate.linee +=
        QString::number(trovate.valori.size()) + kSegno + righe.Fields("testo").TestoOVuoto();
  }
  return trovate;
}

const Convenzione& ConvenzioneScelta(const Convenzioni& convenzioni, const QString& linea) {
  const qsizetype posto = linea.left(linea.indexOf(kSegno)).toLongLong() - 1;
  if (posto < 0 || posto >= static_cast<qsizetype>(convenzioni.valori.size())) {
    throw ErroreEsecuzione(Errore::IndiceNonValido, linea);
  }
  return convenzioni.valori[static_cast<std::size_t>(posto)];
}

}  // namespace torvi
