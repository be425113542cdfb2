#include <array>

#include "cli/comando.h"
#include "cli/per_nome.h"
#include "export/errori_consegna.h"
#include "export/esporta_ascii.h"
#include "shell/apertura.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr std::array kOpzioniEsporta = {Opzione{"controllo-fonti", nullptr},
                                        Opzione{"accoda", "FILE"}};

struct Formato {
  const char* nome;
  FlagEsportazione flag;
};
constexpr std::array kFormati = {Formato{"isis", kEsportaIsis},
                                 Formato{"cassazione", kEsportaCassazione},
                                 Formato{"storico", kEsportaStorico}};

struct FileErrori {
  const char* nome;
  const VoceErrori* voce;
};
constexpr std::array kFileErrori = {FileErrori{"generici", &kErroriGenerici},
                                    FileErrori{"classe", &kErroriClasse},
                                    FileErrori{"fonti", &kErroriFonti}};

void Rispondi(DialoghiConsole& dialoghi, const QCommandLineParser& opzioni) {
  const QString accoda = QStringLiteral("accoda");
  if (opzioni.isSet(accoda) && opzioni.value(accoda).isEmpty()) {
    throw ErroreUso{QStringLiteral("--accoda vuole il nome di un file")};
  }
  const auto risposta = [](bool si) { return si ? Risposta::Si : Risposta::No; };
  dialoghi.Rispondi(QStringLiteral("Controllo presenza fonti?"),
                    risposta(opzioni.isSet(QStringLiteral("controllo-fonti"))));
  dialoghi.Rispondi(QStringLiteral("Accodare risultato dell'esportazione?"),
                    risposta(opzioni.isSet(accoda)));
  dialoghi.FileUscitaScelto(TrovaPercorso(opzioni.value(accoda)));
}

Esito Esporta(Contesto& contesto, const QCommandLineParser& opzioni) {
  const Formato& formato = PerNome(kFormati, opzioni.positionalArguments().constFirst());
  Rispondi(contesto.dialoghi, opzioni);
  contesto.stato.DbArchivio =
      ApriArchivio(opzioni.positionalArguments().constLast(), contesto.dialoghi);
  EsportaAscii(contesto.stato, contesto.dialoghi, formato.flag);
  return Esito::Fatto;
}

// The viewer ends in silence, or with an advice, where it finds no file to show.
Esito Errori(Contesto& contesto, const QCommandLineParser& opzioni) {
  const VoceErrori& voce = *PerNome(kFileErrori, opzioni.positionalArguments().constFirst()).voce;
  contesto.stato.DbArchivio =
      ApriArchivio(opzioni.positionalArguments().constLast(), contesto.dialoghi);
  LeggiInfoConsegna(contesto.stato);
  const QString motivo = VisualizzaErrori(contesto.stato, contesto.dialoghi, voce);
  const bool visti =
      contesto.dialoghi.ErroriMostrati() || contesto.dialoghi.UltimoMessaggio() == voce.nessuno;
  if (visti) return Esito::Fatto;
  contesto.dialoghi.Messaggio("Non si legge "_L1 +
                              FileUscita(contesto.stato.CartellaApplicazione,
                                         QString(voce.file + contesto.stato.SiglaConsegna)) +
                              (motivo.isEmpty() ? QString() : " - "_L1 + motivo));
  return Esito::Fallito;
}

}  // namespace

const Comando kEsporta = {
    "esporta",
    "isis|cassazione|storico ARCHIVIO [--controllo-fonti] [--accoda FILE]",
    "Esporta la consegna in dump/lexxdump FORMATO.SIGLA e scrive i tre file degli errori. Un\n"
    "archivio in formato Jet viene prima convertito; l'originale resta accanto come\n"
    "ARCHIVIO.jet.\n\n"
    "  --controllo-fonti  segnala i documenti senza fonti\n"
    "  --accoda FILE      aggiunge in coda a FILE invece di scrivere un file nuovo\n",
    2,
    kOpzioniEsporta,
    Esporta};

const Comando kErrori = {"errori",
                         "generici|classe|fonti ARCHIVIO",
                         "Scrive gli errori trovati dall'ultima esportazione della consegna.\n",
                         2,
                         {},
                         Errori};

}  // namespace torvi
