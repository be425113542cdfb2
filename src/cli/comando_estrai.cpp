#include <array>

#include "cli/comando.h"
#include "cli/per_nome.h"
#include "report/estrazioni.h"
#include "shell/apertura.h"

namespace torvi {

namespace {

struct VoceEstrazione {
  const char* nome;
  void (*esegui)(StatoGlobale& stato, Dialoghi& dialoghi);
};
constexpr std::array kEstrazioni = {VoceEstrazione{"note", EstraiNote},
                                    VoceEstrazione{"nuovi", EstraiNuovi}};

Esito Esegui(Contesto& contesto, const QCommandLineParser& opzioni) {
  const VoceEstrazione& voce = PerNome(kEstrazioni, opzioni.positionalArguments().constFirst());
  contesto.stato.DbArchivio =
      ApriArchivio(opzioni.positionalArguments().constLast(), contesto.dialoghi);
  voce.esegui(contesto.stato, contesto.dialoghi);
  return Esito::Fatto;
}

}  // namespace

const Comando kEstrai = {
    "estrai",
    "note|nuovi ARCHIVIO",
    "Scrive in dump/ ciò che gli spogliatori hanno lasciato al centro. Un archivio in formato\n"
    "Jet viene prima convertito; l'originale resta accanto come ARCHIVIO.jet.\n\n"
    "  note   le note del compilatore ai documenti, in dump/note.SIGLA\n"
    "  nuovi  i valori aggiunti alle tabelle di codici, in dump/nuovi.SIGLA\n",
    2,
    {},
    Esegui};

}  // namespace torvi
