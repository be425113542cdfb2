#include <array>

#include "cli/comando.h"
#include "cli/per_nome.h"
#include "report/stampa_html.h"
#include "shell/apertura.h"

namespace torvi {

namespace {

struct Stampa {
  const char* nome;
  void (*esegui)(StatoGlobale& stato, Dialoghi& dialoghi);
};
constexpr std::array kStampe = {Stampa{"celex", StampaHTMLCelex}, Stampa{"hudoc", StampaHTMLHudoc}};

Esito Esegui(Contesto& contesto, const QCommandLineParser& righe) {
  const Stampa& stampa = PerNome(kStampe, righe.positionalArguments().constFirst());
  contesto.stato.DbArchivio =
      ApriArchivio(righe.positionalArguments().constLast(), contesto.dialoghi);
  stampa.esegui(contesto.stato, contesto.dialoghi);
  return Esito::Fatto;
}

}  // namespace

const Comando kStampa = {
    "stampa",
    "celex|hudoc ARCHIVIO",
    "Scrive in dump/ una stampa della consegna. Un archivio in formato Jet viene prima\n"
    "convertito; l'originale resta accanto come ARCHIVIO.jet.\n\n"
    "  celex  fonti comunitarie con il collegamento a CELEX, in dump/stampaHTML SIGLA.htm\n"
    "  hudoc  sentenze della Corte europea dei diritti dell'uomo con il collegamento a\n"
    "         HUDOC, in dump/stampaHTML_GEI SIGLA.htm\n",
    2,
    {},
    Esegui};

}  // namespace torvi
