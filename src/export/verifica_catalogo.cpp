#include "export/verifica_catalogo.h"

#include <algorithm>

#include "export/catalogo_norme.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// "dir p.c.m." is sought as it stands here; "dir. p.c.m." is not sought at all.
constexpr QLatin1StringView kAttiCoperti[] = {
    "l. cost."_L1, "d.l."_L1,     "l."_L1,         "d.p.r."_L1,
    "d.lg."_L1,    "d.p.c.m."_L1, "dir p.c.m."_L1, "r.d."_L1,
};

}  // namespace

EsitoCatalogo VerificaCatalogo(ContestoEsportazione& contesto, const FonteLetta& fonte) {
  const QString fonteNorm =
      contesto.condivise.codici.Cerca(TavolaCodici::FonteInterna, fonte[ColonnaFonte::fonte])
          .Fields("FonteNorm")
          .Testo();
  if (std::ranges::find(kAttiCoperti, fonteNorm) == std::end(kAttiCoperti)) {
    return EsitoCatalogo::NonCoperto;
  }
  contesto.catalogo.Apri();
  const AttoCercato atto = {.FonteNorm = fonteNorm,
                            .giorno = fonte[ColonnaFonte::giorno].TestoOVuoto(),
                            .mese = fonte[ColonnaFonte::mese].TestoOVuoto(),
                            .anno = fonte[ColonnaFonte::anno].TestoOVuoto(),
                            .numero = fonte[ColonnaFonte::numero].TestoOVuoto()};
  // A date that lacks a part needs no test of its own: it is on no calendar.
  return contesto.catalogo.Contiene(atto) ? EsitoCatalogo::Trovato : EsitoCatalogo::NonConfermato;
}

}  // namespace torvi
