// The desktop program. It takes no arguments; its folder is that of the executable.
#include <QApplication>
#include <QIcon>
#include <QLocale>

#include "shell/MDIEditorTorvi.h"
#include "shell/avvio.h"
#include "shell/finestra_traduttore.h"
#include "shell/guardia.h"
#include "shell/percorsi.h"

int main(int argc, char* argv[]) {
  const QApplication applicazione(argc, argv);
  QApplication::setApplicationName(QStringLiteral("TorviEditor"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/torvi.png")));
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  torvi::TraduttoreItaliano traduttore;
  QApplication::installTranslator(&traduttore);

  torvi::StatoGlobale stato;
  torvi::PreparaStato(stato, QApplication::applicationDirPath());
  torvi::MDIEditorTorvi finestra(stato);
  finestra.show();
  torvi::Esegui(finestra.DialoghiDellaFinestra(), [&stato] {
    torvi::PreparaCartelle(stato.CartellaApplicazione);
    torvi::TogliLasciati(stato.CartellaApplicazione);
  });
  return QApplication::exec();
}
