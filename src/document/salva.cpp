#include "document/salva.h"

#include "document/carica_parti.h"
#include "document/salva_parti.h"
#include "fonti/salva_fonti.h"

namespace torvi {

bool SalvaDocumento(Documento& documento) {
  if (documento.campi.txtCPer.isEmpty()) {
    documento.dialoghi.Messaggio(QStringLiteral("periodico non ancora immesso"));
    return false;
  }
  documento.RiprendiArchivio();
  UnitaDiScrittura unita(documento.stato.DbArchivio);
  SalvaRigaDocumento(documento, SalvaRiferimento(documento));
  SalvaResponsabilita(documento);
  SalvaTesti(documento);
  SalvaClassi(documento);
  SalvaFonti(documento.stato, documento.dialoghi, NumeroDocumento(documento),
             documento.SalvaComeNuovo);
  unita.Concludi();
  documento.SalvaComeNuovo = false;
  documento.dialoghi.Messaggio(QStringLiteral("Documento salvato!"));
  return true;
}

}  // namespace torvi
