#include <array>

#include "archive/conversione.h"
#include "archive/esempio.h"
#include "archive/master.h"
#include "archive/verifica.h"
#include "cli/comando.h"
#include "shell/percorsi.h"

namespace torvi {

namespace {

constexpr std::array kOpzioniMaster = {Opzione{"da", "VECCHIO.mdb"}};
constexpr std::array kOpzioniEsempio = {Opzione{"documenti", "N"}};

Esito Master(Contesto& contesto, const QCommandLineParser& opzioni) {
  const QString percorso = opzioni.positionalArguments().constFirst();
  if (!opzioni.isSet(QStringLiteral("da"))) {
    CreaMaster(percorso);
    return Esito::Fatto;
  }
  const QString vecchio = TrovaPercorso(opzioni.value(QStringLiteral("da")));
  RichiediArchivio(OpenDatabase(vecchio, Accesso::SolaLettura));
  const Clessidra clessidra(contesto.dialoghi);
  ConvertiJet(vecchio, percorso, [&contesto](const QString& cosa, int fatto, int totale) {
    contesto.dialoghi.Avanzamento(cosa, fatto, totale);
  });
  return Esito::Fatto;
}

Esito Catalogo(Contesto& /*contesto*/, const QCommandLineParser& opzioni) {
  CreaCatalogo(opzioni.positionalArguments().constFirst());
  return Esito::Fatto;
}

int Documenti(const QCommandLineParser& opzioni) {
  const QString nome = QStringLiteral("documenti");
  if (!opzioni.isSet(nome)) return kDocumentiEsempio;
  bool numero = false;
  const int documenti = opzioni.value(nome).toInt(&numero);
  if (!numero || documenti < 1 || documenti > kMassimoDocumentiEsempio) {
    throw ErroreUso{QStringLiteral("--documenti va da 1 a %1").arg(kMassimoDocumentiEsempio)};
  }
  return documenti;
}

Esito Esempio(Contesto& contesto, const QCommandLineParser& opzioni) {
  const int documenti = Documenti(opzioni);
  const Clessidra clessidra(contesto.dialoghi);
  CreaEsempio(opzioni.positionalArguments().constFirst(),
              FileArchivio(contesto.stato.CartellaApplicazione, QStringLiteral("master.mdb")),
              documenti);
  return Esito::Fatto;
}

}  // namespace

const Comando kMaster = {
    "master",
    "FILE [--da VECCHIO.mdb]",
    "Costruisce un archivio master dalle tabelle del programma. FILE non deve esistere.\n\n"
    "  --da VECCHIO.mdb  converte invece un master Jet, tabella per tabella com'è: se contiene\n"
    "                    documenti, li contiene anche FILE\n",
    1,
    kOpzioniMaster,
    Master};

const Comando kCatalogo = {
    "catalogo",
    "FILE",
    "Costruisce il catalogo delle norme dalle tabelle del programma. FILE non deve esistere; il\n"
    "programma lo cerca come mdb/catalogo norme.mdb.\n",
    1,
    {},
    Catalogo};

const Comando kEsempio = {
    "esempio",
    "ARCHIVIO [--documenti N]",
    "Scrive una consegna d'esempio: A01 del 2001, centro A, documenti dal numero 12. Parte da\n"
    "mdb/master.mdb o, dove manca, dalle tabelle del programma. ARCHIVIO non deve esistere. Lo\n"
    "stesso N dà lo stesso file.\n\n"
    "  --documenti N  quanti documenti (40)\n",
    1,
    kOpzioniEsempio,
    Esempio};

}  // namespace torvi
