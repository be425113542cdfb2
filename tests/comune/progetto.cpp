#include "comune/progetto.h"

namespace torvi {

QString FileProgetto(const QString& percorso) {
  return QStringLiteral(TORVI_RADICE "/") + percorso;
}

QString FileGenuino(const QString& nome) { return QStringLiteral(TORVI_FILE_JET "/") + nome; }

}  // namespace torvi
