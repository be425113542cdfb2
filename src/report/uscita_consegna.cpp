#include "report/uscita_consegna.h"

#include "shell/percorsi.h"

namespace torvi {

FileTesto ApriUscita(const StatoGlobale& stato, const QString& nome) {
  if (stato.ModoBatch) return FileTesto(stato.FileBatch, Apertura::Aggiunta);
  return FileTesto(FileUscita(stato.CartellaApplicazione, nome), Apertura::Scrittura);
}

void ChiudiUscita(const StatoGlobale& stato, FileTesto& file) {
  if (stato.ModoBatch) file.Print({});
  file.Close();
}

}  // namespace torvi
