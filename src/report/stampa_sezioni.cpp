#include "report/stampa_sezioni.h"

#include <algorithm>
#include <array>

#include "fonti/righe_fonte.h"
#include "report/rtf.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Etichetta {
  QLatin1StringView tag;
  QLatin1StringView etichetta;
};
constexpr std::array kEtichette = {
    Etichetta{" 6"_L1, "Titolo: }{"_L1},
    Etichetta{"11"_L1, "Traduzione: }{"_L1},
    Etichetta{"15"_L1, "Commento a giurisprudenza: }{"_L1},
    Etichetta{"16"_L1, "Recensione: }{"_L1},
    Etichetta{"17"_L1, "Commento a legislazione: }{"_L1},
    Etichetta{"18"_L1, "Rassegna giurisprudenza: }{"_L1},
    Etichetta{"19"_L1, "Rassegna legislazione: }{"_L1},
    Etichetta{"20"_L1, "Convegno: }{"_L1},
    Etichetta{"13"_L1, "Riassunto: }{"_L1},
    Etichetta{" 9"_L1, "Sommario: }{"_L1},
    Etichetta{"88"_L1, "In tema di: }{"_L1},
    Etichetta{"77"_L1, "English abstract: }{"_L1},
    Etichetta{" 8"_L1, "Note: }{"_L1},
    Etichetta{"99"_L1, "\\i Nota compilatore: }{\\i "_L1},
};

QString TestoFonte(const Recordset& fonte) {
  const QLatin1Char asterisco('*');
  QString testo = fonte.Fields("testo").Testo();
  const QString tp = fonte.Fields("TP").TestoOVuoto();
  if (!FonteEsterna(tp) || testo.contains(asterisco)) return testo;
  return testo + asterisco + tp + asterisco;
}

}  // namespace

QString RigaResponsabili(ContestoStampa& contesto, qint64 idDoc) {
  LegamiInOrdine& legami = contesto.legami.responsabilita;
  bool autore = false;
  QStringList nomi;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    const QString* nome = contesto.nomi.Cerca(legami.Riga().Fields("IDResponsabilita"));
    if (nome == nullptr) continue;
    if (nomi.isEmpty()) autore = legami.Riga().Fields("flagAutore").Logico();
    nomi += rtf::Valore(*nome);
  }
  if (nomi.isEmpty()) return {};
  return rtf::kParagrafo + (autore ? "Autore: }{"_L1 : "Curatore: }{"_L1) + nomi.join("; "_L1) +
         rtf::kFineParagrafo;
}

QString RigaTesto(const TestiDocumento& testi, QLatin1StringView tipo, QLatin1StringView tag) {
  const Campo* trovato = testi.Trova(tipo);
  if (trovato == nullptr) return {};
  const auto* voce = std::ranges::find(kEtichette, tag, &Etichetta::tag);
  QString testo = trovato->Testo();
  // To look first is faster: few of the long texts have any.
  if (testo.contains(QLatin1Char('\\'))) testo.replace(QLatin1Char('\\'), "\\\\"_L1);
  return rtf::kParagrafo + voce->etichetta + testo + rtf::kFineParagrafo;
}

QString RigaFonti(ContestoStampa& contesto, qint64 idDoc) {
  LegamiInOrdine& legami = contesto.legami.fonti;
  QStringList fonti;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) fonti += TestoFonte(legami.Riga());
  if (fonti.isEmpty()) return {};
  return QLatin1Char('{') + rtf::kParagrafo + "Fonte: }"_L1 + fonti.join("\\line "_L1) +
         rtf::kFineParagrafo;
}

}  // namespace torvi
