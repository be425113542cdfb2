#include "export/uscita_accodata.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "archive/database.h"
#include "archive/errore.h"
#include "archive/jet.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// As much as the first two lines of a record need.
QByteArray Inizio(const QString& percorso) {
  constexpr qint64 kInizio = 64;
  QFile file(percorso);
  if (!QFileInfo(percorso).isFile() || !file.open(QIODevice::ReadOnly)) return {};
  return file.read(kInizio);
}

bool EListaConsegne(const QString& percorso) {
  const QFileInfo file(percorso);
  return file.fileName().startsWith("sigle."_L1, Qt::CaseInsensitive) &&
         QFileInfo(file.path()).fileName().compare("mdb"_L1, Qt::CaseInsensitive) == 0;
}

// The number of a document, then how many fields it has.
bool ComeRecord(const QByteArray& inizio) {
  static const QRegularExpression kRecord(u"^\\d{4}.\\d{4,5}\r\n\\d+\r\n"_s);
  return kRecord.match(QString::fromLatin1(inizio)).hasMatch();
}

[[noreturn]] void Rifiuta(const QString& percorso, const QString& cosa) {
  throw ErroreEsecuzione::ConDescrizione(
      Errore::ErroreAccessoFile,
      percorso + cosa + ": non vi si aggiunge nulla. Scegliere un file lexxdump"_L1);
}

}  // namespace

void RichiediUscita(const QString& percorso) {
  const QString trovato = PostoVero(TrovaPercorso(percorso));
  if (EFileArchivio(trovato) || EFileJet(trovato)) Rifiuta(percorso, u" è un archivio"_s);
  if (EListaConsegne(percorso) || EListaConsegne(trovato))
    Rifiuta(percorso, u" è una lista di consegne"_s);
}

void RichiediLexxdump(const QString& percorso) {
  RichiediUscita(percorso);
  const QString trovato = TrovaPercorso(percorso);
  const QFileInfo file(trovato);
  if (!file.isFile() || file.size() == 0) return;
  if (file.fileName().startsWith("lexxdump"_L1, Qt::CaseInsensitive)) return;
  if (!ComeRecord(Inizio(trovato))) Rifiuta(percorso, u" non è un lexxdump"_s);
}

}  // namespace torvi
