#include "report/stampa_fascicolo.h"

#include "export/riferimento_parti.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class Compositore {
 public:
  Compositore(const Recordset& riga, const QString& annoProduzione, FascicoloStampa& fascicolo)
      : riga_(riga),
        annoProduzione_(annoProduzione),
        data_(riga.Fields("Data").TestoOVuoto()),
        fascicolo_(fascicolo) {}

  void Primo();
  void Secondo();

 private:
  void Data();
  void Fascicolo();
  // A column that is there, behind its name and padded.
  void SePresente(QLatin1StringView sottocampo, const char* colonna, int larghezza);

  const Recordset& riga_;
  const QString& annoProduzione_;
  CifreData data_;
  FascicoloStampa& fascicolo_;
};

void Compositore::Primo() {
  fascicolo_.primo =
      "PER="_L1 + riga_.Fields("CPER").Testo() + " FR="_L1 + riga_.Fields("IDPeriodicita").Testo();
  fascicolo_.esteso = riga_.Fields("TitoloRivista").Testo();
  SePresente(" SR="_L1, "Serie", 2);
  SePresente(" ANN="_L1, "Annata", 6);
  Data();
  Fascicolo();
  SePresente(" SUPP="_L1, "Supplemento", 3);
  fascicolo_.esteso += QLatin1Char(',');
}

void Compositore::Data() {
  if (!riga_.Fields("Data").Presente()) return;
  const QString anno = data_.Anno();
  fascicolo_.primo += " DATA="_L1 + data_.Cifre();
  // Years are text, also where they are compared.
  fascicolo_.dopo2000 = anno >= "2000"_L1;
  if (anno >= "1970"_L1 && anno <= annoProduzione_) {
    fascicolo_.esteso += ", "_L1 + anno;
  }
}

void Compositore::Fascicolo() {
  const Campo numero = riga_.Fields("Fascicolo");
  if (!numero.Presente()) return;
  fascicolo_.esteso += ", fasc. "_L1 + numero.Testo() + ParteGiornoMese(data_).citazione;
  fascicolo_.primo += " FASC="_L1 + CodiceFascicolo(numero.Testo());
}

void Compositore::Secondo() {
  const Campo parte = riga_.Fields("Parte");
  if (parte.Presente()) {
    fascicolo_.secondo += " PT="_L1 + parte.Testo();
    fascicolo_.esteso += " pt. "_L1 + parte.Testo();
  }
  const Campo sezione = riga_.Fields("Sezione");
  if (sezione.Presente()) fascicolo_.secondo += " SEZ="_L1 + sezione.Testo();
  const Campo volume = riga_.Fields("Volume");
  if (volume.Presente()) fascicolo_.volume = RiempiZeri(volume.Testo(), 6);
}

void Compositore::SePresente(QLatin1StringView sottocampo, const char* colonna, int larghezza) {
  const Campo valore = riga_.Fields(colonna);
  if (valore.Presente()) fascicolo_.primo += sottocampo + RiempiZeri(valore.Testo(), larghezza);
}

}  // namespace

FascicoloStampa ComponiFascicolo(const Recordset& riga, const QString& annoProduzione) {
  FascicoloStampa fascicolo;
  Compositore compositore(riga, annoProduzione, fascicolo);
  compositore.Primo();
  compositore.Secondo();
  return fascicolo;
}

}  // namespace torvi
