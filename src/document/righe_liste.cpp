#include "document/righe_liste.h"

namespace torvi {

QString RigaLista(const RigaResponsabilita& riga) {
  QString testo = riga.Cancellata ? QStringLiteral("DEL--") : QString();
  testo += riga.flagAutore ? QStringLiteral("A - ") : QStringLiteral("C - ");
  testo += riga.PrimoElemento;
  if (!riga.SecondoElemento.isEmpty()) testo += QStringLiteral(", ") + riga.SecondoElemento;
  return testo;
}

QStringList RigheLista(const std::vector<RigaResponsabilita>& righe) {
  QStringList lista;
  for (const RigaResponsabilita& riga : righe) lista += RigaLista(riga);
  return lista;
}

}  // namespace torvi
