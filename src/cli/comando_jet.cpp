#include "archive/conversione.h"
#include "archive/verifica.h"
#include "cli/comando.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

Esito Converti(Contesto& contesto, const QCommandLineParser& opzioni) {
  const Clessidra clessidra(contesto.dialoghi);
  ConvertiJet(TrovaPercorso(opzioni.positionalArguments().constFirst()),
              opzioni.positionalArguments().constLast(),
              [&contesto](const QString& cosa, int fatto, int totale) {
                contesto.dialoghi.Avanzamento(cosa, fatto, totale);
              });
  return Esito::Fatto;
}

Esito Verifica(Contesto& contesto, const QCommandLineParser& opzioni) {
  const QString percorso = TrovaPercorso(opzioni.positionalArguments().constFirst());
  const QStringList difetti = VerificaArchivio(OpenDatabase(percorso, Accesso::SolaLettura));
  for (const QString& difetto : difetti) contesto.uscita << difetto << '\n';
  contesto.dialoghi.Messaggio(
      difetti.isEmpty() ? QStringLiteral("Nessun difetto: %1").arg(percorso)
                        : QStringLiteral("Difetti: %1 in %2").arg(difetti.size()).arg(percorso));
  return difetti.isEmpty() ? Esito::Fatto : Esito::Fallito;
}

}  // namespace

const Comando kConverti = {
    "converti",
    "VECCHIO.mdb NUOVO.mdb",
    "Scrive il contenuto di un file Jet in un archivio nuovo e lo confronta riga per riga con\n"
    "l'originale, che resta com'è. NUOVO.mdb non deve esistere, e appare solo se è completo.\n",
    2,
    {},
    Converti};

const Comando kVerifica = {"verifica",
                           "ARCHIVIO",
                           "Controlla il file, le sue tabelle, colonne e indici, e i legami senza "
                           "riga. Scrive un difetto\n"
                           "per riga; l'esito è 1 se ce ne sono. Non modifica il file.\n",
                           1,
                           {},
                           Verifica};

}  // namespace torvi
