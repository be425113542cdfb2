#include "export/riferimento_fascicolo.h"

#include "export/riferimento_parti.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class Compositore {
 public:
  Compositore(const Recordset& riga, const QString& annoProduzione,
              RiferimentoFascicolo& riferimento)
      : riga_(riga),
        annoProduzione_(annoProduzione),
        data_(riga.Fields("Data").TestoOVuoto()),
        riferimento_(riferimento) {}

  void Primo();
  void Secondo();

 private:
  void Data();
  void Fascicolo();
  void SePresente(const char* sottocampo, const char* colonna, int larghezza);
  void Aggiungi(const char* sottocampo, const Parte& parte);

  const Recordset& riga_;
  const QString& annoProduzione_;
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
  Aggiungi("DATA", ParteData(data_, annoProduzione_));
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

RiferimentoFascicolo ComponiRiferimento(const Recordset& riga, const QString& annoProduzione) {
  RiferimentoFascicolo riferimento;
  Compositore compositore(riga, annoProduzione, riferimento);
  compositore.Primo();
  compositore.Secondo();
  return riferimento;
}

}  // namespace torvi
