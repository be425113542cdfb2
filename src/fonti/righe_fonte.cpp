#include "fonti/righe_fonte.h"

namespace torvi {
namespace {

bool MostraCodice(const QString& tp, RegolaLista regola) {
  switch (regola) {
    case RegolaLista::Caricata:
      return FonteEsterna(tp);
    case RegolaLista::DopoAltra:
      return !FonteInterna(tp);
    case RegolaLista::DopoInterna:
      break;
  }
  return false;
}

}  // namespace

bool FonteEsterna(const QString& tp) {
  return tp.startsWith(QLatin1String("NI")) || tp.startsWith(QLatin1String("GE")) ||
         tp.startsWith(QLatin1Char('F')) || tp == QLatin1String("NS") || tp == QLatin1String("GS");
}

bool FonteInterna(const QString& tp) {
  return tp.startsWith(QLatin1String("LI")) || tp.startsWith(QLatin1String("GI")) ||
         tp == QLatin1String("AC");
}

QString RigaLista(const RigaFonte& riga, RegolaLista regola) {
  QString linea = riga.Cancellata ? QStringLiteral("DEL--") : QString();
  linea += riga.Testo;
  if (MostraCodice(riga.TP, regola)) linea += QLatin1Char('*') + riga.TP + QLatin1Char('*');
  return linea;
}

QStringList RigheLista(const std::vector<RigaFonte>& righe, RegolaLista regola) {
  QStringList lista;
  for (const RigaFonte& riga : righe) lista += RigaLista(riga, regola);
  return lista;
}

QString SenzaCodice(const QString& testo) { return testo.section(QLatin1Char('*'), 0, 0); }

void AzzeraFonte(RigaFonte& riga) {
  RigaFonte vuota;
  vuota.TP = QStringLiteral("0");
  vuota.Decreto = riga.Decreto;
  vuota.Ordinanza = riga.Ordinanza;
  riga = vuota;
}

}  // namespace torvi
