#include "report/sigle.h"

#include <QFile>
#include <QFileInfo>

#include "archive/errore.h"
#include "export/codepagina.h"
#include "export/file_testo.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

constexpr qsizetype kMassimoSigla = 255;                          // a file's name is no longer
constexpr QChar kFineTesto(u'\x1a');                              // Ctrl-Z
const QString kSegnoUtf8 = QStringLiteral("\u00ef\u00bb\u00bf");  // as it reads in Windows-1252

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
  bool utf8 = false;
  while (auto riga = file.LineInput(kMassimoSigla)) {
    if (sigle.isEmpty() && riga->startsWith(kSegnoUtf8)) {
      utf8 = true;
      riga->remove(0, kSegnoUtf8.size());
    }
    const qsizetype fine = riga->indexOf(kFineTesto);
    if (fine >= 0) riga->truncate(fine);
    if (fine != 0) sigle += utf8 ? QString::fromUtf8(ConvertiAnsi(*riga)) : *riga;
    if (fine >= 0) break;
  }
  return sigle;
}

void ScriviSigle(const QString& percorso, const QStringList& sigle) {
  // A list that is write-protected is written all the same.
  const QString lista = TrovaPercorso(percorso);
  if (QFileInfo(lista).isFile()) {
    QFile::setPermissions(lista, QFile::permissions(lista) | QFile::WriteOwner);
  }
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
