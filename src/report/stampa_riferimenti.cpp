#include "report/stampa_riferimenti.h"

#include "export/riferimento_parti.h"
#include "report/rtf.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// The coded line and the reading form grow side by side, from where the issue leaves them.
struct Riferimento {
  QString codificato;
  QString esteso;
};

// Pages that run backwards show in the coded line by their beginning alone.
QString CodicePagine(const QString& pagine) {
  const qsizetype tratto = pagine.indexOf(QLatin1Char('-'));
  if (tratto < 0) return RiempiZeri(pagine, 9);
  const QString prima = pagine.left(tratto);
  return Val(prima) < Val(QStringView(pagine).mid(tratto + 1)) ? Intervallo(pagine) : prima;
}

void AggiungiPagine(Riferimento& riferimento, const QString& pagine) {
  if (pagine.isEmpty()) return;
  AggiungiSottocampo(riferimento.codificato, "PAG", CodicePagine(pagine));
  riferimento.esteso += (pagine.contains(QLatin1Char('-')) ? " pagg. "_L1 : " pag. "_L1) + pagine;
}

void AggiungiBibliografia(ContestoStampa& contesto, Riferimento& riferimento, const QString& bib) {
  if (bib.isEmpty()) return;
  riferimento.codificato += " BIB="_L1 + bib;
  const RigaCodice& tabBib = contesto.codici.Cerca(TavolaCodici::Bibliografia, bib);
  riferimento.esteso += ", ("_L1 + tabBib.Fields("TipoBibliografia").Testo() + QLatin1Char(')');
}

void AggiungiCodici(QString& codificato, const DatiDocumento& documento) {
  if (!documento.td.isEmpty()) codificato += " TD="_L1 + documento.td;
  if (!documento.TAbs.isEmpty()) codificato += " TABS="_L1 + documento.TAbs;
}

// A language that is not there is not "00" either: its name stands with nothing behind it.
void AggiungiLingue(QString& codificato, const DatiDocumento& documento) {
  codificato += " LIN="_L1 + documento.LIN;
  if (documento.lo != "00"_L1) codificato += " LO="_L1 + documento.lo;
  if (documento.lr != "00"_L1) codificato += " LR="_L1 + documento.lr;
  if (documento.la != "00"_L1) codificato += " LA="_L1 + documento.la;
}

QString Paragrafo(QLatin1StringView etichetta, const QString& testo) {
  return rtf::kParagrafo + etichetta + "}{"_L1 + rtf::Valore(testo) + rtf::kFineParagrafo;
}

}  // namespace

QString RigaRiferimenti(ContestoStampa& contesto, const QString& idRecord,
                        const DatiDocumento& documento) {
  const FascicoloStampa& fascicolo =
      contesto.fascicoli.Leggi(documento.IDRifBibl, idRecord.left(4));
  if (fascicolo.dopo2000) contesto.stato.Dopo2000 = *fascicolo.dopo2000;
  Riferimento riferimento = {fascicolo.secondo, fascicolo.esteso};
  AggiungiPagine(riferimento, documento.pagine);
  AggiungiCodici(riferimento.codificato, documento);
  AggiungiBibliografia(contesto, riferimento, documento.Bib);
  AggiungiLingue(riferimento.codificato, documento);
  if (!fascicolo.volume.isEmpty()) riferimento.codificato += " VOL="_L1 + fascicolo.volume;

  QString esteso = Paragrafo("Riferimenti estesi: "_L1, riferimento.esteso);
  if (!contesto.completa) return esteso;
  return Paragrafo("Riferimenti bibl. 1: "_L1, fascicolo.primo) +
         Paragrafo("Riferimenti bibl. 2: "_L1, riferimento.codificato) + esteso;
}

}  // namespace torvi
