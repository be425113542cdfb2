#include "export/esporta_documento.h"

#include "export/classi.h"
#include "export/elenco_fonti.h"
#include "export/fonti_etichettate.h"
#include "export/fonti_in_anticipo.h"
#include "export/riferimento.h"
#include "export/testi.h"
#include "shell/consegna.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class Documento {
 public:
  Documento(ContestoEsportazione& contesto, const FlagEsportazione& flag, const Recordset& riga)
      : contesto_(contesto),
        flag_(flag),
        riga_(riga),
        idDoc_(riga.Fields("IDDocumento").Intero()),
        idRecord_(contesto.stato.PrefissoDoc + NumeroDoc(contesto.stato)),
        testi_(contesto.legami.testi, idDoc_) {}

  void Componi();

 private:
  void Identifica();
  void Riferimento();
  void TitoloETraduzione();
  void Nota();
  void Testi();
  void Fonti();
  void Classificazione();

  bool Testo(const CampoTesto& campo);
  void Segnala(const char* messaggio, const QString& coda);

  ContestoEsportazione& contesto_;
  const FlagEsportazione& flag_;
  const Recordset& riga_;
  qint64 idDoc_;
  QString idRecord_;
  TestiDocumento testi_;
  QString td_;
  QString tAbs_;
  bool straniero_ = false;
  bool traduzione_ = false;
};

void Documento::Componi() {
  Identifica();
  Riferimento();
  ScriviResponsabili(contesto_, idDoc_, idRecord_);
  td_ = riga_.Fields("td").Testo();
  tAbs_ = riga_.Fields("TAbs").Testo();
  TitoloETraduzione();
  if (straniero_) {
    Segnala(traduzione_ ? "Contributo in lingua straniera: "
                        : "Contributo in lingua straniera senza traduzione del titolo: ",
            idRecord_);
  }
  Nota();
  Testi();
  Fonti();
  Classificazione();
  Testo(testo::kNotaAmb);
}

void Documento::Identifica() {
  const QString& prefisso = contesto_.stato.PrefissoDoc;
  contesto_.record.Azzera();
  contesto_.record.AggiungiRiga(tag::kIdentificativo, idRecord_);
  contesto_.record.AggiungiRiga(tag::kNumero, "AP="_L1 + prefisso.left(4) + " NP="_L1 +
                                                  prefisso.mid(4, 1) + NumeroDoc(contesto_.stato));
}

void Documento::Riferimento() {
  const DatiDocumento dati = {.IDRifBibl = riga_.Fields("IDRifBibl").Intero16(),
                              .pagine = riga_.Fields("pagine").TestoOVuoto(),
                              .td = riga_.Fields("td").TestoOVuoto(),
                              .TAbs = riga_.Fields("TAbs").TestoOVuoto(),
                              .Bib = riga_.Fields("Bib").TestoOVuoto(),
                              .LIN = riga_.Fields("LIN").Testo(),
                              .lo = riga_.Fields("lo").Testo(),
                              .lr = riga_.Fields("lr").Testo(),
                              .la = riga_.Fields("la").Testo()};
  straniero_ = dati.LIN != "00"_L1;
  ScriviRiferimento(contesto_, testi_, idDoc_, idRecord_, dati);
  if (dati.pagine.isEmpty() || dati.td.isEmpty() || dati.TAbs.isEmpty() || dati.Bib.isEmpty()) {
    Segnala("Errori sui dati bibliografici: ", idRecord_);
  }
}

void Documento::TitoloETraduzione() {
  Testo(testo::kTitolo);
  traduzione_ = Testo(testo::kTraduzione);
}

void Documento::Nota() {
  if (td_ == "01"_L1) {
    if (EsisteTesto(contesto_, testi_, idDoc_, {u"4"})) {
      Segnala("TD = 01 e presenza nota: ",
              idRecord_ + " (record = "_L1 + QString::number(idDoc_) + QLatin1Char(')'));
    }
    return;
  }
  const QLatin1StringView tag = TagNota(td_);
  if (!tag.isEmpty()) Testo({QStringLiteral("4"), QStringLiteral("nota"), tag});
}

void Documento::Testi() {
  Testo(testo::kRiassunto);
  Testo(testo::kSommario);
  Testo(testo::kInTemaDi);
  const bool inglese = Testo(testo::kEnglishAbstract);
  if (inglese && !traduzione_) {
    Segnala("C'è abstract in inglese e manca traduzione del titolo: rec. ",
            QString::number(idDoc_));
  }
}

void Documento::Fonti() {
  const std::span<const FonteLetta> fonti = contesto_.fonti.Leggi(idDoc_);
  ScriviElencoFonti(contesto_, fonti, idRecord_);
  if (flag_.flagIsis) ScriviFontiEtichettate(contesto_, fonti);
}

void Documento::Classificazione() {
  const bool dopo2000 = contesto_.stato.Dopo2000;
  contesto_.CodiciClasse = LeggiClassi(contesto_, idDoc_, idRecord_);
  if (flag_.flagStorico && dopo2000) {
    contesto_.record.AggiungiTesto(tag::kCodiciClasse, contesto_.CodiciClasse);
  }
  if (contesto_.CodiciClasse.isEmpty()) return;
  if (flag_.flagStorico && (!flag_.flagCassazione || dopo2000)) ScriviClassiStorico(contesto_);
  if (flag_.flagCassazione) ScriviClassiCassazione(contesto_);
}

bool Documento::Testo(const CampoTesto& campo) {
  return ScriviTesto(contesto_, testi_, idRecord_, campo, td_, tAbs_);
}

void Documento::Segnala(const char* messaggio, const QString& coda) {
  contesto_.fileErrori.Print(QString::fromUtf8(messaggio) + coda);
}

}  // namespace

void EsportaDocumento(ContestoEsportazione& contesto, const FlagEsportazione& flag,
                      const Recordset& riga, FileTesto& uscita) {
  Documento(contesto, flag, riga).Componi();
  contesto.record.ScriviRecord(uscita);
  contesto.stato.ContatoreDoc = Intero16(contesto.stato.ContatoreDoc + 1);
}

}  // namespace torvi
