#include "shell/apertura.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include "archive/conversione.h"
#include "archive/errore.h"
#include "archive/file_nuovo.h"
#include "archive/jet.h"
#include "archive/verifica.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

using Requisito = void (*)(const Database&);

void Converti(const QString& percorso, Requisito requisito, Dialoghi& dialoghi) {
  // Any Jet file can be converted; only one of that kind should be.
  requisito(OpenDatabase(percorso, Accesso::SolaLettura));
  Clessidra clessidra(dialoghi);
  ConvertiInLoco(percorso, [&dialoghi](const QString& cosa, int fatto, int totale) {
    dialoghi.Avanzamento(cosa, fatto, totale);
  });
  clessidra.Togli();
  dialoghi.Messaggio(
      QStringLiteral("Archivio convertito; l'originale è conservato come %1.jet").arg(percorso));
}

Database Apri(const QString& percorso, Requisito requisito, Dialoghi& dialoghi) {
  const QString trovato = TrovaPercorso(percorso);
  if (EFileJet(trovato)) Converti(trovato, requisito, dialoghi);
  Database database = OpenDatabase(trovato);
  requisito(database);
  return database;
}

// Found wanting before anything is copied over an archive that is there.
void RichiediMaster(const QString& master, const QString& destinazione) {
  if (!QFileInfo::exists(master)) throw ErroreEsecuzione(Errore::FileNonTrovato, master);
  if (QFileInfo(master) == QFileInfo(destinazione)) {
    throw ErroreEsecuzione(Errore::AccessoNegato, master);
  }
  RichiediArchivio(OpenDatabase(master, Accesso::SolaLettura));
}

void ScriviInformazioni(const Database& archivio, const QString& informazione) {
  const QStringList campi = informazione.split(u'|');
  if (campi.size() < 4) throw ErroreEsecuzione(Errore::IndiceNonValido);
  Recordset info = archivio.OpenRecordset(QStringLiteral("TabInfo"));
  info.AddNew();
  info.Assegna("Consegna", campi[0].toUpper());
  info.Assegna("NumInizio", campi[1]);
  info.Assegna("IDCentroSpoglio", campi[2].toUpper());
  info.Assegna("AnnoProduzione", campi[3]);
  info.Update();
}

// On disk a name in another case is another file; to the operator it is the one to be replaced.
void TogliAltraGrafia(const QString& trovato, const QString& percorso) {
  if (trovato != percorso) QFile::remove(trovato);
}

}  // namespace

Database ApriArchivio(const QString& percorso, Dialoghi& dialoghi) {
  return Apri(percorso, RichiediArchivio, dialoghi);
}

Database ApriCatalogo(const QString& percorso, Dialoghi& dialoghi) {
  return Apri(percorso, RichiediCatalogo, dialoghi);
}

QString CreaConsegna(StatoGlobale& stato, const QString& percorso, const QString& informazione,
                     Dialoghi& dialoghi) {
  const QString master = FileArchivio(stato.CartellaApplicazione, QStringLiteral("master.mdb"));
  QString destinazione = NomeMaiuscolo(percorso);
  const QString precedente = TrovaPercorso(destinazione);
  RichiediMaster(master, precedente);
  if (EFileJet(master)) Converti(master, RichiediArchivio, dialoghi);
  FileNuovo nuovo(destinazione);
  nuovo.Copia(master);
  try {
    stato.DbArchivio = OpenDatabase(nuovo.Percorso());
    ScriviInformazioni(stato.DbArchivio, informazione);
    stato.DbArchivio.Close();
  } catch (const ErroreEsecuzione&) {
    nuovo.Sostituisci();  // what was copied stays
    throw;
  }
  nuovo.Sostituisci();
  TogliAltraGrafia(precedente, destinazione);
  return destinazione;
}

}  // namespace torvi
