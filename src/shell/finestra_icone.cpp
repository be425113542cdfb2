#include "shell/finestra_icone.h"

#include <QFile>

#include "archive/errore.h"

// The macro declares a function, which must not land in a namespace.
static void RendiVisibili() { Q_INIT_RESOURCE(icone); }

namespace torvi {

QIcon IconaDi(const QString& nome) {
  RendiVisibili();
  const QString percorso = QStringLiteral(":/icone/") + nome + QStringLiteral(".svg");
  if (!QFile::exists(percorso)) throw ErroreEsecuzione(Errore::FileNonTrovato, percorso);
  return QIcon(percorso);
}

}  // namespace torvi
