#include "report/uscita_consegna.h"

#include "export/uscita_accodata.h"
#include "shell/percorsi.h"

namespace torvi {

FileTesto ApriUscita(const StatoGlobale& stato, const QString& nome) {
  if (stato.ModoBatch) {
    RichiediUscita(stato.FileBatch);
    return FileTesto(stato.FileBatch, Apertura::Aggiunta);
  }
  return FileTesto(FileUscita(stato.CartellaApplicazione, nome), Apertura::Scrittura);
}

void PartiConsegna(const StatoGlobale& stato, FileTesto& file) {
  if (stato.ModoBatch) file.Print({});
}

void Concludi(FileTesto& file, Clessidra& clessidra, Dialoghi& dialoghi, const QString& messaggio) {
  file.Close();
  clessidra.Togli();
  dialoghi.FileScritto(file.Percorso());
  dialoghi.Messaggio(messaggio);
}

}  // namespace torvi
