#include "report/controllo_uso.h"

#include "shell/accesso_riservato.h"
#include "shell/marcatori.h"

namespace torvi {

using namespace Qt::Literals::StringLiterals;

QString FunzioniUsate(const Database& archivio) {
  QString testo = u"Sono stati utilizzate le seguenti funzioni:"_s;
  Recordset info = archivio.OpenRecordset(u"select * from tabInfo"_s);
  for (; !info.Eof(); info.MoveNext()) {
    for (const Marcatore& marcatore : kMarcatori) {
      if (info.Fields(marcatore.colonna).TestoOVuoto() != "1"_L1) continue;
      testo += "\r\n"_L1 + marcatore.etichetta;
    }
  }
  return testo;
}

void ControllaUso(StatoGlobale& stato, Dialoghi& dialoghi) {
  if (!AccessoRiservato(stato, dialoghi, u"Non hai i diritti per utilizzare alla funzione"_s)) {
    return;
  }
  stato.TestoErrori = FunzioniUsate(stato.DbArchivio);
  dialoghi.MostraErrori(stato.TestoErrori);
}

}  // namespace torvi
