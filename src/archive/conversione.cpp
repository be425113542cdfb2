#include "archive/conversione.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include "archive/collazione.h"
#include "archive/connessione.h"
#include "archive/errore.h"
#include "archive/file_nuovo.h"
#include "archive/secondo_nome.h"
#include "archive/travaso_jet.h"

namespace torvi {
namespace {

struct Rimedio {
  Errore numero;
  const char16_t* testo;
};

constexpr Rimedio kRimedi[] = {
    {Errore::DiscoPieno, u"Liberare spazio sul disco e riprovare."},
    {Errore::ErroreDispositivo, u"Controllare il disco e riprovare."},
    {Errore::ErroreAccessoFile, u"Controllare che nella cartella si possa scrivere e riprovare."},
    {Errore::PermessoNegato, u"Chiedere il permesso di accesso al file e riprovare."},
};

QString RimedioPer(const ErroreEsecuzione& errore) {
  for (const Rimedio& rimedio : kRimedi) {
    if (errore.E(rimedio.numero)) return QLatin1Char(' ') + QString::fromUtf16(rimedio.testo);
  }
  return {};
}

ErroreEsecuzione NonRiuscita(const QString& percorso, const ErroreEsecuzione& causa) {
  return ErroreEsecuzione::ConDescrizione(
      static_cast<Errore>(causa.Numero()),
      QStringLiteral("Il file %1 non è stato convertito ed è rimasto com'era. %2%3")
          .arg(percorso, causa.Descrizione(), RimedioPer(causa)));
}

// What the engine refuses of a Jet file's tables is the file's fault; the rest is the disk's.
ErroreEsecuzione DelTravaso(const SQLite::Exception& guasto, const QString& jet,
                            const QString& archivio) {
  switch (guasto.getErrorCode() & 0xff) {
    case SQLITE_ERROR:
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
      return ErroreEsecuzione(Errore::FormatoNonRiconosciuto,
                              QStringLiteral("%1 (%2)").arg(jet, QString::fromUtf8(guasto.what())));
    default:
      return DaMotore(guasto, archivio);
  }
}

// Runs `lavoro` on a database and gives its failures the names of both files.
template <typename Lavoro>
auto ColMotore(const QString& jet, const QString& archivio, Lavoro lavoro) {
  try {
    return lavoro();
  } catch (const SQLite::Exception& guasto) {
    throw DelTravaso(guasto, jet, archivio);
  }
}

void Scrivi(const LettoreJet& lettore, const QString& archivio, Contarighe& conto) {
  SQLite::Database motore(archivio.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
  RegistraFunzioni(motore.getHandle());
  motore.exec(kPagine);
  motore.exec("PRAGMA application_id = " + std::to_string(kMarchioArchivio));
  // Until it has its name the file is nobody's: FileNuovo puts it on disk, or takes it away.
  motore.exec("PRAGMA journal_mode = OFF");
  motore.exec("PRAGMA synchronous = OFF");
  Versa(lettore, motore, conto);
}

void Verifica(const QString& jet, const QString& archivio, Contarighe& conto) {
  const LettoreJet lettore(jet);
  SQLite::Database motore(archivio.toStdString(), SQLite::OPEN_READONLY);
  RegistraFunzioni(motore.getHandle());
  const QString diversa = Diversa(lettore, motore, conto);
  if (diversa.isEmpty()) return;
  throw ErroreEsecuzione(
      Errore::ErroreInterno,
      QStringLiteral("la tabella %1 non corrisponde all'originale").arg(diversa));
}

// The whole conversion into a file that has no name yet.
void Converti(const QString& vecchio, const FileNuovo& nuovo, const Progresso& progresso) {
  const LettoreJet lettore(vecchio);
  Contarighe conto(lettore, 2, progresso);
  nuovo.Riempi([&] {
    ColMotore(vecchio, nuovo.Percorso(), [&] {
      Scrivi(lettore, nuovo.Percorso(), conto);
      Verifica(vecchio, nuovo.Percorso(), conto);
    });
  });
  QFile::setPermissions(nuovo.Percorso(), QFile::permissions(vecchio) | QFile::WriteOwner);
}

void RichiediFile(const QString& percorso) {
  if (!QFileInfo::exists(percorso)) throw ErroreEsecuzione(Errore::DatabaseNonTrovato, percorso);
}

void RichiediPosto(const QString& percorso, const QString& conservato) {
  if (QFileInfo::exists(conservato) && !StessoFile(percorso, conservato)) {
    throw ErroreEsecuzione::ConDescrizione(
        Errore::ErroreAccessoFile,
        QStringLiteral("Il file %1 non è stato convertito ed è rimasto com'era. Esiste già %2, che "
                       "conserva un altro originale: spostarlo e riprovare.")
            .arg(percorso, conservato));
  }
  if (!QFileInfo(percorso).isWritable()) {
    throw NonRiuscita(percorso, ErroreEsecuzione(Errore::PermessoNegato, percorso));
  }
}

}  // namespace

void ConvertiJet(const QString& vecchio, const QString& nuovo, const Progresso& progresso) {
  RichiediFile(vecchio);
  if (QFileInfo::exists(nuovo)) {
    throw ErroreEsecuzione::ConDescrizione(
        Errore::ErroreAccessoFile,
        QStringLiteral("Il file %1 esiste già: scegliere un altro nome.").arg(nuovo));
  }
  try {
    FileNuovo file(nuovo);
    Converti(vecchio, file, progresso);
    file.Consegna();
  } catch (const ErroreEsecuzione& errore) {
    throw NonRiuscita(vecchio, errore);
  }
}

void ConvertiInLoco(const QString& percorso, const Progresso& progresso) {
  RichiediFile(percorso);
  // Where a link leads: a rename would take the place of the link.
  const QString vero = QFileInfo(percorso).canonicalFilePath();
  const QString conservato = vero + QStringLiteral(".jet");
  RichiediPosto(vero, conservato);
  try {
    FileNuovo file(vero);
    Converti(vero, file, progresso);
    SecondoNome originale(vero, conservato);
    file.Sostituisci();
    originale.Conserva();
  } catch (const ErroreEsecuzione& errore) {
    throw NonRiuscita(percorso, errore);
  }
}

void CaricaJet(const QString& percorso, SQLite::Database& motore) {
  const LettoreJet lettore(percorso);
  Contarighe conto(lettore, 1, {});
  ColMotore(percorso, percorso, [&] {
    motore.exec("PRAGMA synchronous = OFF");
    Versa(lettore, motore, conto);
  });
}

}  // namespace torvi
