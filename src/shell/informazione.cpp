#include "shell/informazione.h"

namespace torvi {

QString SegnapostoCentro() { return QStringLiteral("Centro spoglio"); }
QString SegnapostoAnno() { return QStringLiteral("Anno produzione"); }

QStringList VociCentro() {
  QStringList voci;
  for (const QChar c : QStringLiteral("123456789ABCDEFGHJKILMNOPQRSTUVWXYZ")) voci += c;
  return voci;
}

QStringList VociAnno(int annoCorrente) {
  QStringList voci;
  for (int anno = annoCorrente - 1; anno <= annoCorrente + 4; ++anno) voci += QString::number(anno);
  return voci;
}

bool Completi(const CampiInformazione& campi) {
  return !campi.consegna.isEmpty() && !campi.inizio.isEmpty() && !campi.centro.isEmpty() &&
         !campi.anno.isEmpty() && campi.centro != SegnapostoCentro() &&
         campi.anno != SegnapostoAnno();
}

QString Unisci(const CampiInformazione& campi) {
  return QStringList{campi.consegna, campi.inizio, campi.centro, campi.anno}.join(QLatin1Char('|'));
}

}  // namespace torvi
