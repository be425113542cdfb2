#include "cli/comando.h"
#include "report/controllo_uso.h"
#include "shell/apertura.h"

namespace torvi {

namespace {

Esito Controllo(Contesto& contesto, const QCommandLineParser& opzioni) {
  const Database archivio =
      ApriArchivio(opzioni.positionalArguments().constFirst(), contesto.dialoghi);
  contesto.dialoghi.MostraErrori(FunzioniUsate(archivio) + QStringLiteral("\r\n"));
  return Esito::Fatto;
}

}  // namespace

const Comando kControllo = {
    "controllo",
    "ARCHIVIO",
    "Scrive quali funzioni di controllo sono state usate sulla consegna. Un archivio in formato\n"
    "Jet viene prima convertito; l'originale resta accanto come ARCHIVIO.jet.\n",
    1,
    {},
    Controllo};

}  // namespace torvi
