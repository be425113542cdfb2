#include "export/riferimento_fascicolo.h"

#include "export/riferimento_parti.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class Compositore {
 public:
  Compositore(const Recordset& riga, RiferimentoFascicolo& riferimento)
      : riga_(riga), data_(riga.Fields("Data").TestoOVuoto()), riferimento_(riferimento) {}

  void Primo();
  void Secondo();

 private:
  void Data();
  void Fascicolo();
  void SePresente(const char* sottocampo, const char* colonna, int larghezza);
  void Aggiungi(const char* sottocampo, const Parte& parte);

  const Recordset& riga_;
  CifreData data_;
  RiferimentoFascicolo& riferimento_;
};

void Compositore::Primo() {
  QString& primo = riferimento_.primo;
  AggiungiSottocampo(primo, "PER", riga_.Fields("CPER").Testo());
  AggiungiSottocampo(primo, "FR", riga_.Fields("IDPeriodicita").Testo());
  SePresente("SR", "Serie", 2);
  SePresente("ANN", "Annata", 6);
  riferimento_.citazione = riga_.Fields("TitoloRivista").Testo();
  Data();
  Fascicolo();
  SePresente("SUPP", "Supplemento", 3);
  primo = Trim(primo);
  riferimento_.citazione += QLatin1Char(',');
}

void Compositore::Data() {
  if (!riga_.Fields("Data").Presente()) return;
  riferimento_.dopo2000 = data_.Anno() >= "2000"_L1;
  Aggiungi("DATA", ParteData(data_, riferimento_.annoProduzione));
}

void Compositore::Fascicolo() {
  constexpr int kSenzaFascicoli = 9;
  const Campo fascicolo = riga_.Fields("Fascicolo");
  if (fascicolo.Presente()) {
    Aggiungi("FASC", ParteFascicolo(fascicolo.Testo(), data_));
  } else if (riga_.Fields("IDPeriodicita").Intero() != kSenzaFascicoli) {
    riferimento_.messaggi += "Errore fascicolo mancante: "_L1;
  }
}

void Compositore::Secondo() {
  const Campo parte = riga_.Fields("Parte");
  if (parte.Presente()) {
    AggiungiSottocampo(riferimento_.secondo, "PT", parte.Testo());
    riferimento_.citazione += " pt"_L1 + kSegno + ". "_L1 + parte.Testo() + QLatin1Char(',');
  }
  const Campo sezione = riga_.Fields("Sezione");
  if (sezione.Presente()) {
    AggiungiSottocampo(riferimento_.secondo, "SEZ", sezione.Testo() + QLatin1Char(','));
  }
  const Campo volume = riga_.Fields("Volume");
  if (volume.Presente()) riferimento_.volume = RiempiZeri(volume.Testo(), 6);
}

void Compositore::SePresente(const char* sottocampo, const char* colonna, int larghezza) {
  const Campo valore = riga_.Fields(colonna);
  if (!valore.Presente()) return;
  AggiungiSottocampo(riferimento_.primo, sottocampo, RiempiZeri(valore.Testo(), larghezza));
}

void Compositore::Aggiungi(const char* sottocampo, const Parte& parte) {
  riferimento_.messaggi += parte.messaggi;
  AggiungiSottocampo(riferimento_.primo, sottocampo, parte.codice);
  riferimento_.citazione += parte.citazione;
}

}  // namespace

const RiferimentoFascicolo& LettoreRiferimenti::Leggi(const Database& archivio, qint16 idRifBibl,
                                                      const QString& annoProduzione) {
  if (ultimo_ && ultimo_->IDRifBibl == idRifBibl && ultimo_->annoProduzione == annoProduzione) {
    return *ultimo_;
  }
  const Recordset riga = archivio.OpenRecordset(
      QStringLiteral("select * from tabRifBibl, tabRivista where tabRifBibl.IDRifBibl = ? and "
                     "tabRifBibl.IDRivista = tabRivista.IDRivista"),
      {static_cast<qint64>(idRifBibl)});
  RiferimentoFascicolo riferimento;
  riferimento.IDRifBibl = idRifBibl;
  riferimento.annoProduzione = annoProduzione;
  Compositore compositore(riga, riferimento);
  compositore.Primo();
  compositore.Secondo();
  ultimo_ = std::move(riferimento);
  return *ultimo_;
}

}  // namespace torvi
