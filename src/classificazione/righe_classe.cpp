#include "classificazione/righe_classe.h"

namespace torvi {
namespace {

QString Inizio(const RigaClasse& riga) {
  return QString::number(riga.Check) + QStringLiteral(" - ") + riga.Sistematico;
}

}  // namespace

QString RigaListaCaricata(const RigaClasse& riga) {
  if (riga.Descrittore.isEmpty()) return Inizio(riga);
  return Inizio(riga) + QStringLiteral("; ") + riga.Descrittore;
}

QStringList RigheLista(const std::vector<RigaClasse>& righe) {
  QStringList lista;
  for (const RigaClasse& riga : righe) {
    const QString segno = riga.Cancellata ? QStringLiteral("DEL--") : QString();
    lista += segno + Inizio(riga) + QStringLiteral("; ") + riga.Descrittore;
  }
  return lista;
}

}  // namespace torvi
