#include "fonti/salva_fonti.h"

#include "fonti/query_fonte.h"
#include "fonti/riferimenti_fonte.h"
#include "fonti/tavole_fonte.h"
#include "shell/valori.h"

namespace torvi {
namespace {

void ScriviColonne(Recordset& fonti, const RigaFonte& riga) {
  fonti.Assegna("tp", riga.TP);
  for (const auto& [colonna, campo] : ColonneFonte()) fonti.Assegna(colonna, riga.*campo);
  fonti.Assegna("mese", NumeroMese(riga.Mese));
  fonti.Assegna("testo", riga.Testo);
  fonti.Assegna("altro", riga.Altro);
  fonti.Assegna("ordinanza", riga.Ordinanza);
  fonti.Assegna("decreto", riga.Decreto);
}

// The number of the new row.
qint64 AggiungiFonte(StatoGlobale& stato, Dialoghi& dialoghi, Recordset& fonti,
                     const RigaFonte& riga) {
  fonti.AddNew();
  ScriviColonne(fonti, riga);
  // The same names are looked up again: one that was refused is asked about once more.
  const RiferimentiFonte riferimenti = CercaRiferimenti(stato, dialoghi, riga);
  if (riferimenti.catalogo) fonti.Assegna("fonte", *riferimenti.catalogo);
  for (const auto& [colonna, chiave] : riferimenti.nomi) fonti.Assegna(colonna, chiave);
  fonti.Update();
  fonti.Bookmark(fonti.LastModified());
  return fonti.Fields("IDFonte").Intero();
}

qint64 TrovaOAggiungi(StatoGlobale& stato, Dialoghi& dialoghi, Recordset& fonti,
                      const RigaFonte& riga) {
  {
    const Recordset uguali = stato.DbArchivio.OpenRecordset(QueryFonte(stato, dialoghi, riga));
    if (!uguali.Eof()) return uguali.Fields("IDFonte").Intero();
  }
  return AggiungiFonte(stato, dialoghi, fonti, riga);
}

}  // namespace

void SalvaFonti(StatoGlobale& stato, Dialoghi& dialoghi, qint64 idDocumento, bool salvaComeNuovo) {
  if (stato.RigheFonte.empty()) return;
  if (!salvaComeNuovo) {
    stato.DbArchivio.Execute(QStringLiteral("delete * from legameDocFonte where IDDoc = ?"),
                             {idDocumento});
  }
  Recordset fonti = stato.DbArchivio.OpenRecordset(QStringLiteral("tabFonte"));
  Recordset legami = stato.DbArchivio.OpenRecordset(QStringLiteral("legameDocFonte"));
  for (const RigaFonte& riga : stato.RigheFonte) {
    if (riga.Cancellata) continue;
    const qint64 idFonte = TrovaOAggiungi(stato, dialoghi, fonti, riga);
    legami.AddNew();
    legami.Assegna("idDoc", idDocumento);
    legami.Assegna("IDFnt", idFonte);
    legami.Update();
  }
}

}  // namespace torvi
