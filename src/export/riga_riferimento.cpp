#include "export/riga_riferimento.h"

namespace torvi {

const RigaRiferimento& LettoreRiferimenti::Leggi(const Database& archivio, qint16 idRifBibl) {
  if (ultima_ && ultima_->IDRifBibl == idRifBibl) return *ultima_;
  const Recordset riga = archivio.OpenRecordset(
      QStringLiteral("select * from tabRifBibl, tabRivista where tabRifBibl.IDRifBibl = ? and "
                     "tabRifBibl.IDRivista = tabRivista.IDRivista"),
      {static_cast<qint64>(idRifBibl)});
  ultima_ = {.IDRifBibl = idRifBibl,
             .CPER = riga.Fields("CPER"),
             .TitoloRivista = riga.Fields("TitoloRivista"),
             .IDPeriodicita = riga.Fields("IDPeriodicita"),
             .Fascicolo = riga.Fields("Fascicolo"),
             .Annata = riga.Fields("Annata"),
             .Volume = riga.Fields("Volume"),
             .Parte = riga.Fields("Parte"),
             .Serie = riga.Fields("Serie"),
             .Supplemento = riga.Fields("Supplemento"),
             .Sezione = riga.Fields("Sezione"),
             .Data = riga.Fields("Data")};
  return *ultima_;
}

}  // namespace torvi
