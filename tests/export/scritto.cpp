#include "export/scritto.h"

#include <QFile>

#include "archive/schema.h"
#include "export/catalogo_norme.h"

namespace torvi {

Scritto Scrivi(const CartellaDiProva& cartella, StatoGlobale& stato,
               const std::function<void(ContestoEsportazione&)>& scrittore) {
  const QString errori = cartella.Dump("errori.A01");
  const QString errClasse = cartella.Dump("errClasse.A01");
  const QString errFonte = cartella.Dump("errFonte.A01");
  Scritto scritto;
  Record record;
  {
    CatalogoNorme catalogo(stato.CartellaApplicazione);
    FileTesto fileErrori(errori, Apertura::Scrittura);
    FileTesto fileErrClasse(errClasse, Apertura::Scrittura);
    FileTesto fileErrFonte(errFonte, Apertura::Scrittura);
    TabelleCondivise condivise(stato.DbArchivio);
    FontiInAnticipo fonti(stato.DbArchivio);
    ContestoEsportazione contesto = {stato,        record,   fileErrori, fileErrClasse,
                                     fileErrFonte, catalogo, condivise,  fonti};
    scritto.errore = NumeroErrore([&] { scrittore(contesto); });
  }
  for (const Record::Riga& riga : record.RigheRecord()) {
    scritto.campi += QString(riga.tag + riga.contenuto.toString() + "\n").toStdString();
  }
  scritto.errori = Byte(errori).toStdString();
  scritto.errClasse = Byte(errClasse).toStdString();
  scritto.errFonte = Byte(errFonte).toStdString();
  return scritto;
}

void CatalogoConUnAtto(const CartellaDiProva& cartella, const char* abbreviazione) {
  const QString percorso = cartella.Mdb("Catalogo Norme.MDB");
  QFile::remove(percorso);
  CreaDatabase(percorso, SchemaCatalogo());
  const Valori valori = {{"anno", 1990},
                         {"numero", "241"},
                         {"abbreviazione", abbreviazione},
                         {"promulgazione", "07/08/1990"}};
  Aggiungi(OpenDatabase(percorso), "tabCatalogo", valori);
}

}  // namespace torvi
