#include <array>

#include "cli/comando.h"
#include "cli/per_nome.h"
#include "report/consistenza.h"
#include "report/pdf.h"
#include "report/prospetto.h"
#include "report/stampa_html.h"
#include "report/stampa_rtf.h"
#include "shell/apertura.h"

namespace torvi {

namespace {

constexpr std::array kOpzioni = {Opzione{"filtro", nullptr}, Opzione{"pdf", nullptr}};

struct Stampa {
  const char* nome;
  void (*esegui)(StatoGlobale& stato, Dialoghi& dialoghi);
  void (*conFiltro)(StatoGlobale& stato, Dialoghi& dialoghi) = nullptr;
};

template <bool completa, bool filtro>
void EseguiRTF(StatoGlobale& stato, Dialoghi& dialoghi) {
  StampaRTF(stato, dialoghi, completa, filtro);
}

constexpr std::array kStampe = {Stampa{"completa", EseguiRTF<true, false>},
                                Stampa{"testi", EseguiRTF<false, false>, EseguiRTF<false, true>},
                                Stampa{"prospetto-rtf", ProspettoRTF},
                                Stampa{"prospetto-html", ProspettoHTML},
                                Stampa{"consistenza", StampaConsistenza},
                                Stampa{"celex", StampaHTMLCelex},
                                Stampa{"hudoc", StampaHTMLHudoc}};

Esito Esegui(Contesto& contesto, const QCommandLineParser& opzioni) {
  const Stampa& stampa = PerNome(kStampe, opzioni.positionalArguments().constFirst());
  const bool filtro = opzioni.isSet(QStringLiteral("filtro"));
  if (filtro && stampa.conFiltro == nullptr) {
    throw ErroreUso{QStringLiteral("--filtro vale solo per la stampa dei testi")};
  }
  const bool pdf = opzioni.isSet(QStringLiteral("pdf"));
  const QString programma = pdf ? ProgrammaPdf() : QString();
  contesto.stato.DbArchivio =
      ApriArchivio(opzioni.positionalArguments().constLast(), contesto.dialoghi);
  (filtro ? stampa.conFiltro : stampa.esegui)(contesto.stato, contesto.dialoghi);
  if (!pdf) return Esito::Fatto;
  for (const QString& file : contesto.dialoghi.FileScritti()) {
    contesto.uscita << ConvertiInPdf(programma, file) << '\n';
  }
  return Esito::Fatto;
}

}  // namespace

const Comando kStampa = {
    "stampa",
    "completa|testi|prospetto-rtf|prospetto-html|consistenza|celex|hudoc ARCHIVIO [--filtro] "
    "[--pdf]",
    "Scrive in dump/ una stampa della consegna. Un archivio in formato Jet viene prima\n"
    "convertito; l'originale resta accanto come ARCHIVIO.jet.\n\n"
    "  completa        tutti i campi dei documenti, in dump/stampaRTF-C-SIGLA.rtf\n"
    "  testi           i soli campi testo, in dump/stampaRTF-T-SIGLA.rtf\n"
    "  prospetto-rtf   documenti per rivista, fascicolo e TABS, in dump/prospetto SIGLA.rtf\n"
    "  prospetto-html  lo stesso con i totali, in dump/prospetto SIGLA.html\n"
    "  consistenza     documenti per fascicolo, in dump/consistenza.SIGLA\n"
    "  celex           fonti comunitarie con il collegamento a CELEX, in\n"
    "                  dump/stampaHTML SIGLA.htm\n"
    "  hudoc           sentenze della Corte europea dei diritti dell'uomo con il\n"
    "                  collegamento a HUDOC, in dump/stampaHTML_GEI SIGLA.htm\n\n"
    "  --filtro        dei testi, solo i documenti con una ] nella traduzione del titolo\n"
    "  --pdf           anche in PDF, di cui scrive il nome; vuole LibreOffice installato\n\n"
    "Le stampe RTF cominciano con un modello della cartella dell'applicazione:\n"
    "\"testata new.rtf\" o \"testata prospetto.rtf\".\n",
    2,
    kOpzioni,
    Esegui};

}  // namespace torvi
