#include "export/verifica_catalogo.h"

#include <algorithm>

#include "export/fonti_documento.h"

namespace torvi {
namespace {

// "dir p.c.m." is sought as it stands here; "dir. p.c.m." is not sought at all.
constexpr QLatin1StringView kAttiCoperti[] = {
    QLatin1StringView("l. cost."), QLatin1StringView("d.l."),       QLatin1StringView("l."),
    QLatin1StringView("d.p.r."),   QLatin1StringView("d.lg."),      QLatin1StringView("d.p.c.m."),
    QLatin1StringView("dir p.c.m."), QLatin1StringView("r.d."),
};

}  // namespace

EsitoCatalogo VerificaCatalogo(const Database& archivio, CatalogoNorme& catalogo,
                               const Recordset& fonte) {
  const QString fonteNorm =
      CercaPerChiave(archivio, QStringLiteral("TabFonteInterna"), fonte.Fields("fonte"))
          .Fields("FonteNorm")
          .Testo();
  if (std::ranges::find(kAttiCoperti, fonteNorm) == std::end(kAttiCoperti)) {
    return EsitoCatalogo::NonCoperto;
  }
  catalogo.Apri();
  const AttoCercato atto = {.FonteNorm = fonteNorm,
                            .giorno = fonte.Fields("giorno").TestoOVuoto(),
                            .mese = fonte.Fields("mese").TestoOVuoto(),
                            .anno = fonte.Fields("anno").TestoOVuoto(),
                            .numero = fonte.Fields("numero").TestoOVuoto()};
  // A date that lacks a part needs no test of its own: it is on no calendar.
  return catalogo.Contiene(atto) ? EsitoCatalogo::Trovato : EsitoCatalogo::NonConfermato;
}

}  // namespace torvi
