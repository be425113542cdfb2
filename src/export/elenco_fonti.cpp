#include "export/elenco_fonti.h"

#include "export/una_riga.h"
#include "export/verifica_catalogo.h"
#include "fonti/righe_fonte.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Citazione {
  const FonteLetta& fonte;
  QString tp;
  QString testo;
};

constexpr qint64 kFonteTar = 117;  // the row of TabFonteInterna

bool E(const Campo& campo, qint64 valore) { return !campo.Nullo() && campo.Intero() == valore; }

bool TarSenzaRegione(ContestoEsportazione& /*contesto*/, const Citazione& citazione) {
  return citazione.tp == "GIA"_L1 && E(citazione.fonte[ColonnaFonte::fonte], kFonteTar) &&
         E(citazione.fonte[ColonnaFonte::IDRegione], 0);
}

bool NumeroOltreLimite(ContestoEsportazione& /*contesto*/, const Citazione& citazione) {
  // The number is needed as text whatever the kind of source.
  const QString numero = citazione.fonte[ColonnaFonte::numero].Testo();
  return citazione.tp == "GICO"_L1 && Val(numero) > 1000;
}

bool NumeroMancante(ContestoEsportazione& /*contesto*/, const Citazione& citazione) {
  return (citazione.tp == "GICO"_L1 || citazione.tp == "GICA"_L1) &&
         citazione.fonte[ColonnaFonte::numero].Testo().isEmpty();
}

bool AttoNonConfermato(ContestoEsportazione& contesto, const Citazione& citazione) {
  const bool norma =
      citazione.tp == "LICO"_L1 || citazione.tp == "LIO"_L1 || citazione.tp == "LIOA"_L1;
  return norma && VerificaCatalogo(contesto, citazione.fonte) == EsitoCatalogo::NonConfermato;
}

struct Controllo {
  bool ancheSullaPrima;
  bool (*fallito)(ContestoEsportazione&, const Citazione&);
  QLatin1StringView messaggio;
};

constexpr Controllo kControlli[] = {
    {true, TarSenzaRegione, "Fonte TAR senza regione: "_L1},
    {false, NumeroOltreLimite, "Fonte GICO con numero > 1000: "_L1},
    {false, NumeroMancante, "Fonte GICO/GICA senza numero: "_L1},
    {true, AttoNonConfermato, "Fonte errata: "_L1},
};

QString Elemento(const Citazione& citazione) {
  constexpr QLatin1Char kStella('*');
  if (!FonteEsterna(citazione.tp) || citazione.testo.contains(kStella)) return citazione.testo;
  return citazione.testo + kStella + citazione.tp + kStella;
}

}  // namespace

void ScriviElencoFonti(ContestoEsportazione& contesto, std::span<const FonteLetta> fonti,
                       const QString& idRecord) {
  if (fonti.empty()) {
    if (contesto.stato.ControlloFonti) {
      contesto.fileErrori.Print("Manca fonte: "_L1 + idRecord);
    }
    return;
  }
  QString elenco;
  for (const FonteLetta& fonte : fonti) {
    const bool prima = &fonte == &fonti.front();
    const Citazione citazione = {fonte, fonte[ColonnaFonte::TP].Testo(),
                                 fonte[ColonnaFonte::testo].Testo()};
    if (!prima) elenco += QLatin1Char('\\');
    elenco += Elemento(citazione);
    for (const Controllo& controllo : kControlli) {
      if (prima && !controllo.ancheSullaPrima) continue;
      if (!controllo.fallito(contesto, citazione)) continue;
      contesto.fileErrFonte.Print(controllo.messaggio + UnaRiga(citazione.testo) + " ("_L1 +
                                  idRecord + QLatin1Char(')'));
    }
  }
  contesto.record.AggiungiTesto(tag::kFonti, elenco);
}

}  // namespace torvi
