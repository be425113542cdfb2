#include "export/fonti_di_prova.h"

#include "export/elenco_fonti.h"
#include "export/fonti_etichettate.h"
#include "export/fonti_in_anticipo.h"
#include "shell/consegna.h"

namespace torvi {
namespace {

constexpr qint64 kDocumento = 3;

}  // namespace

FontiDiProva::FontiDiProva(const DatiConsegna& dati) : stato(cartella.StatoConConsegna(dati)) {
  LeggiInfoConsegna(stato);
}

qint64 FontiDiProva::Riga(const char* tabella, Valori valori) const {
  return Aggiungi(stato.DbArchivio, tabella, valori);
}

qint64 FontiDiProva::Fonte(Valori valori) const {
  const qint64 fonte = Riga("TabFonte", valori);
  Riga("LegameDocFonte", {{"IDDoc", kDocumento}, {"IDFnt", fonte}});
  return fonte;
}

void FontiDiProva::TogliFonti() const { stato.DbArchivio.Execute("delete * from LegameDocFonte"); }

void FontiDiProva::NuovoCatalogo(const char* abbreviazione) const {
  CatalogoConUnAtto(cartella, abbreviazione);
}

std::span<const FonteLetta> FontiDiProva::Fonti(ContestoEsportazione& contesto) {
  return contesto.fonti.Leggi(kDocumento);
}

Scritto FontiDiProva::Scrivi(const std::function<void(ContestoEsportazione&)>& scrittore) {
  unita_.reset();
  Scritto scritto = torvi::Scrivi(cartella, stato, scrittore);
  unita_.emplace(stato.DbArchivio);
  return scritto;
}

Scritto FontiDiProva::Elenco() {
  return Scrivi([](ContestoEsportazione& contesto) {
    ScriviElencoFonti(contesto, Fonti(contesto), "2001A0012");
  });
}

Scritto FontiDiProva::Etichettate() {
  return Scrivi(
      [](ContestoEsportazione& contesto) { ScriviFontiEtichettate(contesto, Fonti(contesto)); });
}

}  // namespace torvi
