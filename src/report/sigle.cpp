#include "report/sigle.h"

#include <QFile>
#include <QFileInfo>

#include "archive/errore.h"
#include "export/file_testo.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

// Empty where the operator cancels.
QString Chiedi(const StatoGlobale& stato, Dialoghi& dialoghi, bool nuovo) {
  try {
    return dialoghi.ScegliFile(
        {.titolo = QStringLiteral("Apri file sigle"),
         .filtro = QStringLiteral("File sigle (sigle.*)|sigle.*"),
         .estensione = {},
         .cartella = TrovaPercorso(stato.CartellaApplicazione + QLatin1String("/mdb")),
         .deveEsistere = !nuovo});
  } catch (const ErroreEsecuzione& errore) {
    if (!errore.E(Errore::OperazioneAnnullata)) throw;
    return {};
  }
}

bool Presente(const QString& percorso) {
  const QFileInfo file(percorso);
  return ElencoFile(file.path(), QStringLiteral("sigle.*"))
      .contains(file.fileName(), Qt::CaseInsensitive);
}

}  // namespace

QStringList LeggiSigle(const QString& percorso) {
  FileTesto file(percorso, Apertura::Lettura);
  QStringList sigle;
  while (const auto riga = file.LineInput()) sigle += *riga;
  return sigle;
}

void ScriviSigle(const QString& percorso, const QStringList& sigle) {
  if (!percorso.isEmpty()) QFile::remove(TrovaPercorso(percorso));
  FileTesto file(percorso, Apertura::Scrittura);
  for (const QString& sigla : sigle) file.Print(sigla);
  file.Close();
}

bool ScegliFileSigle(StatoGlobale& stato, Dialoghi& dialoghi, bool nuovo) {
  QString scelto = Chiedi(stato, dialoghi, nuovo);
  while (nuovo && !scelto.isEmpty() && Presente(scelto)) {
    dialoghi.Messaggio(QStringLiteral("Nome archivio già presente: inserire un nuovo nome!"));
    scelto = Chiedi(stato, dialoghi, nuovo);
  }
  if (!scelto.isEmpty()) {
    stato.FileBatch = scelto;
    return true;
  }
  if (nuovo) {
    dialoghi.Messaggio(QStringLiteral("Inserire nome file (sigle.sigla aggiornamento)"));
  }
  return false;
}

}  // namespace torvi
