#include "export/riferimento.h"

#include "export/riferimento_parti.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// Fields 14 and 21 grow side by side, from where the issue leaves them.
class Riferimento {
 public:
  Riferimento(ContestoEsportazione& contesto, const TestiDocumento& testi, qint64 idDoc,
              const QString& idRecord)
      : contesto_(contesto), testi_(testi), idDoc_(idDoc), idRecord_(idRecord) {}

  void Fascicolo(const RiferimentoFascicolo& fascicolo);
  void Documento(const DatiDocumento& documento, const QString& volume);

 private:
  void Pagine(const QString& pagine);
  void TipoAbstract(const QString& tAbs);
  void Bibliografia(const QString& bib);
  void Lingua(const char* sottocampo, const QString& lingua);
  void Codifica(const char* sottocampo, const QString& valore) {
    AggiungiSottocampo(codificato_, sottocampo, valore);
  }
  void Segnala(const QString& messaggio) { contesto_.fileErrori.Print(messaggio + idRecord_); }

  ContestoEsportazione& contesto_;
  const TestiDocumento& testi_;
  qint64 idDoc_;
  const QString& idRecord_;
  QString codificato_;
  QString esteso_;
};

void Riferimento::Fascicolo(const RiferimentoFascicolo& fascicolo) {
  for (const QString& messaggio : fascicolo.messaggi) Segnala(messaggio);
  if (fascicolo.dopo2000) contesto_.stato.Dopo2000 = *fascicolo.dopo2000;
  contesto_.record.AggiungiRiga(tag::kRiferimento, fascicolo.primo);
  codificato_ = fascicolo.secondo;
  esteso_ = fascicolo.citazione;
}

void Riferimento::Documento(const DatiDocumento& documento, const QString& volume) {
  Pagine(documento.pagine);
  if (documento.td.isEmpty()) {
    Segnala(QStringLiteral("Errore TD mancante: "));
  } else {
    Codifica("TD", documento.td);
  }
  TipoAbstract(documento.TAbs);
  Bibliografia(documento.Bib);
  Codifica("LIN", documento.LIN);
  Lingua("LO", documento.lo);
  Lingua("LR", documento.lr);
  Lingua("LA", documento.la);
  if (!volume.isEmpty()) Codifica("VOL", volume);
  contesto_.record.AggiungiRiga(tag::kSecondoRiferimento, Trim(codificato_));
  contesto_.record.AggiungiRiga(tag::kCitazione, Trim(esteso_));
}

void Riferimento::Pagine(const QString& pagine) {
  if (pagine.isEmpty()) {
    Segnala(QStringLiteral("Errore pagina mancante: "));
    return;
  }
  const Parte parte = PartePagine(pagine);
  for (const QString& messaggio : parte.messaggi) Segnala(messaggio);
  Codifica("PAG", parte.codice);
  esteso_ += parte.citazione;
}

void Riferimento::TipoAbstract(const QString& tAbs) {
  if (tAbs.isEmpty()) {
    Segnala(QStringLiteral("Errore TAbs mancante: "));
    return;
  }
  Codifica("TABS", tAbs);
  if (tAbs != "500"_L1 && tAbs != "800"_L1) return;
  if (EsisteTesto(contesto_, testi_, idDoc_, {u"2", u"7"})) return;
  Segnala(QStringLiteral("Manca 'In tema di'/'Sommario' e TABS = 500/800: "));
}

void Riferimento::Bibliografia(const QString& bib) {
  if (bib.isEmpty()) {
    Segnala(QStringLiteral("Errore BIB mancante: "));
    return;
  }
  Codifica("BIB", bib);
  const RigaCodice& tabBib = contesto_.condivise.codici.Cerca(TavolaCodici::Bibliografia, bib);
  esteso_ += ", ("_L1 + tabBib.Fields("TipoBibliografia").Testo() + QLatin1Char(')');
}

void Riferimento::Lingua(const char* sottocampo, const QString& lingua) {
  if (lingua != "00"_L1) Codifica(sottocampo, lingua);
}

}  // namespace

void ScriviRiferimento(ContestoEsportazione& contesto, const TestiDocumento& testi, qint64 idDoc,
                       const QString& idRecord, const DatiDocumento& documento) {
  const RiferimentoFascicolo& fascicolo =
      contesto.condivise.riferimenti.Leggi(documento.IDRifBibl, idRecord.left(4));
  Riferimento riferimento(contesto, testi, idDoc, idRecord);
  riferimento.Fascicolo(fascicolo);
  riferimento.Documento(documento, fascicolo.volume);
}

}  // namespace torvi
