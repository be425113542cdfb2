#include "shell/apertura.h"

#include <QFile>
#include <QStringList>

#include "archive/conversione.h"
#include "archive/errore.h"
#include "archive/file_nuovo.h"
#include "archive/jet.h"
#include "archive/verifica.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

void Converti(const QString& percorso, Dialoghi& dialoghi) {
  // Any Jet file can be converted; only an archive should be.
  RichiediArchivio(OpenDatabase(percorso, Accesso::SolaLettura));
  const Clessidra clessidra(dialoghi);
  ConvertiInLoco(percorso, [&dialoghi](const QString& cosa, int fatto, int totale) {
    dialoghi.Avanzamento(cosa, fatto, totale);
  });
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
  const QString trovato = TrovaPercorso(percorso);
  if (EFileJet(trovato)) Converti(trovato, dialoghi);
  Database archivio = OpenDatabase(trovato);
  RichiediArchivio(archivio);
  return archivio;
}

QString CreaConsegna(StatoGlobale& stato, const QString& percorso, const QString& informazione,
                     Dialoghi& dialoghi) {
  const QString master = FileArchivio(stato.CartellaApplicazione, QStringLiteral("master.mdb"));
  if (EFileJet(master)) Converti(master, dialoghi);
  const QString destinazione = NomeMaiuscolo(percorso);
  const QString precedente = TrovaPercorso(destinazione);
  FileNuovo nuovo(destinazione);
  nuovo.Copia(master);
  stato.DbArchivio = OpenDatabase(nuovo.Percorso());
  ScriviInformazioni(stato.DbArchivio, informazione);
  stato.DbArchivio.Close();
  nuovo.Sostituisci();
  TogliAltraGrafia(precedente, destinazione);
  return destinazione;
}

}  // namespace torvi
