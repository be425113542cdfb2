#include "document/salva.h"

#include "document/carica.h"
#include "document/carica_parti.h"
#include "document/impronta.h"
#include "document/numero_documento.h"
#include "document/salva_parti.h"
#include "fonti/salva_fonti.h"

namespace torvi {
namespace {

// What another window or program wrote since the load would be lost.
bool ConfermaCambiati(const Documento& documento) {
  if (documento.SalvaComeNuovo || documento.numeroSuo != NumeroDocumento(documento)) return true;
  const QStringList cambiate = PartiCambiate(documento);
  return cambiate.isEmpty() ||
         documento.dialoghi.Domanda(
             QStringLiteral("Il documento %1 è stato modificato nell'archivio da quando è stato "
                            "caricato (%2). Salvare lo stesso quello che sta nella scheda?")
                 .arg(QString::number(documento.numeroSuo), cambiate.join(QStringLiteral(", "))),
             QStringLiteral("Salvataggio"), Pulsanti::SiNo) == Risposta::Si;
}

void ScriviTutto(Documento& documento) {
  UnitaDiScrittura unita(documento.stato.DbArchivio);
  SalvaRigaDocumento(documento, SalvaRiferimento(documento));
  SalvaResponsabilita(documento);
  SalvaTesti(documento);
  SalvaClassi(documento);
  SalvaFonti(documento.stato, documento.dialoghi, NumeroDocumento(documento),
             documento.SalvaComeNuovo);
  unita.Concludi();
}

}  // namespace

bool SalvaDocumento(Documento& documento) {
  if (!documento.guasto.isEmpty()) {
    AvvertiNonCaricato(documento);
    return false;
  }
  if (documento.campi.txtCPer.isEmpty()) {
    documento.dialoghi.Messaggio(QStringLiteral("periodico non ancora immesso"));
    return false;
  }
  documento.RiprendiArchivio();
  if (!ConfermaNumero(documento) || !ConfermaCambiati(documento)) return false;
  ScriviTutto(documento);
  documento.SalvaComeNuovo = false;
  RiconosciArchiviato(documento);
  documento.testiMancanti.clear();
  documento.dialoghi.Messaggio(QStringLiteral("Documento salvato!"));
  return true;
}

}  // namespace torvi
