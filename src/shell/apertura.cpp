#include "shell/apertura.h"

#include <QFileInfo>
#include <QStringList>
#include <array>

#include "archive/conversione.h"
#include "archive/copia_archivio.h"
#include "archive/errore.h"
#include "archive/file_nuovo.h"
#include "archive/jet.h"
#include "archive/master.h"
#include "archive/verifica.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

using Requisito = void (*)(const Database&);

// The file behind a link; any other path as it was given.
QString Vero(const QString& percorso) {
  const QFileInfo file(percorso);
  return file.isSymLink() ? file.canonicalFilePath() : percorso;
}

void Converti(const QString& percorso, Requisito requisito, Dialoghi& dialoghi) {
  // Any Jet file can be converted; only one of that kind should be.
  requisito(OpenDatabase(percorso, Accesso::SolaLettura));
  Clessidra clessidra(dialoghi);
  ConvertiInLoco(percorso, [&dialoghi](const QString& cosa, int fatto, int totale) {
    dialoghi.Avanzamento(cosa, fatto, totale);
  });
  clessidra.Togli();
  dialoghi.Messaggio(QStringLiteral("Archivio convertito; l'originale è conservato come %1.jet")
                         .arg(Vero(percorso)));
}

Database Apri(const QString& percorso, Requisito requisito, Dialoghi& dialoghi) {
  const QString trovato = TrovaPercorso(percorso);
  if (EFileJet(trovato)) Converti(trovato, requisito, dialoghi);
  Database database = OpenDatabase(trovato);
  requisito(database);
  return database;
}

// Found wanting before anything is made, or a file that is there is touched.
void RichiediMaster(const QString& master, const QString& destinazione) {
  if (!QFileInfo::exists(master)) throw ErroreEsecuzione(Errore::FileNonTrovato, master);
  if (QFileInfo(master) == QFileInfo(destinazione)) {
    throw ErroreEsecuzione(Errore::AccessoNegato, master);
  }
  // For writing, so that what a killed program began in it is rolled back.
  const Database aperto = OpenDatabase(master);
  RichiediArchivio(aperto);
  RichiediSenzaConsegna(aperto);
}

struct Dato {
  const char* colonna;
  bool maiuscolo;
};
// In the order in which they are given.
constexpr std::array kDati = {Dato{"Consegna", true}, Dato{"NumInizio", false},
                              Dato{"IDCentroSpoglio", true}, Dato{"AnnoProduzione", false}};

QStringList LeggiDati(const QString& informazione, const QString& master) {
  QStringList campi = informazione.split(u'|');
  if (campi.size() < static_cast<qsizetype>(kDati.size())) {
    throw ErroreEsecuzione(Errore::IndiceNonValido);
  }
  for (std::size_t i = 0; i < kDati.size(); ++i) {
    QString& campo = campi[static_cast<qsizetype>(i)];
    if (kDati[i].maiuscolo) campo = campo.toUpper();
    const int larghezza = LarghezzaColonna(master, "TabInfo", kDati[i].colonna);
    if (campo.size() <= larghezza) continue;
    throw ErroreEsecuzione::ConDescrizione(
        Errore::ConversioneTipo,
        QStringLiteral("%1 ha %2 caratteri, al massimo possono essere %3: archivio non creato.")
            .arg(QLatin1String(kDati[i].colonna))
            .arg(campo.size())
            .arg(larghezza));
  }
  return campi;
}

void ScriviInformazioni(const Database& archivio, const QStringList& campi) {
  Recordset info = archivio.OpenRecordset(QStringLiteral("TabInfo"));
  info.AddNew();
  for (std::size_t i = 0; i < kDati.size(); ++i) {
    info.Assegna(kDati[i].colonna, campi[static_cast<qsizetype>(i)]);
  }
  info.Update();
}

// Where the delivery goes: behind a link that has its name, where the link leads.
QString Posto(const QString& trovato, const QString& percorso) {
  if (QFileInfo(trovato).isDir()) return trovato;
  return QFileInfo(trovato).isSymLink() ? Vero(trovato) : percorso;
}

// What a killed program began in the archive that is kept is rolled back; one that another program
// is writing to is not replaced under its hands.
void Ripristina(const QString& precedente) {
  if (!QFileInfo(precedente).isFile() || EFileJet(precedente)) return;
  try {
    OpenDatabase(precedente).Close();
  } catch (const ErroreEsecuzione& errore) {
    if (errore.E(Errore::DatabaseInUso)) throw;
  }
}

}  // namespace

Database ApriArchivio(const QString& percorso, Dialoghi& dialoghi) {
  return Apri(percorso, RichiediArchivio, dialoghi);
}

Database ApriCatalogo(const QString& percorso, Dialoghi& dialoghi) {
  return Apri(percorso, RichiediCatalogo, dialoghi);
}

Database ApriConsegna(const QString& percorso, Dialoghi& dialoghi) {
  Database archivio = ApriArchivio(percorso, dialoghi);
  const int righe = archivio.Conta(QStringLiteral("from TabInfo"));
  if (righe == 1) return archivio;
  const QString quale =
      righe == 0
          ? QStringLiteral("mancano i dati della consegna (TabInfo è vuota)")
          : QStringLiteral("ci sono i dati di più consegne (TabInfo ha %1 righe)").arg(righe);
  dialoghi.Messaggio(QStringLiteral("Nell'archivio %1 %2: stampe ed esportazioni non riusciranno. "
                                    "Usare una copia di riserva, o avvertire l'assistenza.")
                         .arg(archivio.Name(), quale));
  return archivio;
}

QString CreaConsegna(StatoGlobale& stato, const QString& percorso, const QString& informazione,
                     Dialoghi& dialoghi) {
  const QString master = FileArchivio(stato.CartellaApplicazione, QStringLiteral("master.mdb"));
  const QString maiuscolo = NomeMaiuscolo(percorso);
  const QString trovato = TrovaPercorso(maiuscolo);
  RichiediMaster(master, trovato);
  if (EFileJet(master)) Converti(master, RichiediArchivio, dialoghi);
  const QStringList campi = LeggiDati(informazione, master);
  FileNuovo nuovo(Posto(trovato, maiuscolo));
  const QString precedente = Vero(trovato);
  Ripristina(precedente);
  nuovo.Riempi([&] {
    CopiaArchivio(master, nuovo);
    Database consegna = OpenDatabase(nuovo.Percorso());
    ScriviInformazioni(consegna, campi);
    consegna.Close();
    RichiediIntegro(nuovo.Percorso());
    stato.DbArchivio = consegna;
  });
  const QString conservato = nuovo.SostituisciConservando(precedente);
  if (!conservato.isEmpty()) {
    dialoghi.Messaggio(
        QStringLiteral("Archivio creato; quello di prima è conservato come %1").arg(conservato));
  }
  return nuovo.Destinazione();
}

}  // namespace torvi
