#include "document/carica_parti.h"
#include "document/salva_parti.h"

namespace torvi {
namespace {

// A collective author has no second name, and no second name equals the empty text: it is never
// found.
qint16 CercaPersona(const Database& archivio, const RigaResponsabilita& riga) {
  const Recordset persona = archivio.OpenRecordset(
      QStringLiteral("select * from tabresponsabilita where tabresponsabilita!primoElemento=? and "
                     "tabresponsabilita!secondoElemento = ?"),
      {riga.PrimoElemento, riga.SecondoElemento});
  return persona.Eof() ? qint16{0} : persona.Fields("IDResponsabilita").Intero16();
}

qint16 AggiungiPersona(Recordset& persone, const RigaResponsabilita& riga) {
  const bool collettivo = riga.SecondoElemento.isEmpty();
  persone.AddNew();
  persone.Assegna("PrimoElemento", riga.PrimoElemento);
  if (!collettivo) persone.Assegna("SecondoElemento", riga.SecondoElemento);
  persone.Assegna("flagCollettivo", collettivo);
  persone.Update();
  persone.Bookmark(persone.LastModified());
  return persone.Fields("IDResponsabilita").Intero16();
}

}  // namespace

void SalvaResponsabilita(Documento& documento) {
  auto& righe = documento.stato.RigheResponsabilita;
  if (righe.empty()) return;
  const Database& archivio = documento.stato.DbArchivio;
  const qint64 idDoc = NumeroDocumento(documento);
  if (!documento.SalvaComeNuovo) {
    archivio.Execute(QStringLiteral("delete * from legameDocResp where IDDoc =?"), {idDoc});
  }
  Recordset persone = archivio.OpenRecordset(QStringLiteral("tabResponsabilita"));
  Recordset legami = archivio.OpenRecordset(QStringLiteral("legameDocResp"));
  for (RigaResponsabilita& riga : righe) {
    if (riga.Cancellata) continue;
    const qint16 trovata = CercaPersona(archivio, riga);
    riga.IDResponsabilitaRiga = trovata != 0 ? trovata : AggiungiPersona(persone, riga);
    legami.AddNew();
    legami.Assegna("idDoc", idDoc);
    legami.Assegna("IDResponsabilita", static_cast<qint64>(riga.IDResponsabilitaRiga));
    legami.Assegna("flagAutore", riga.flagAutore);
    legami.Update();
  }
}

}  // namespace torvi
