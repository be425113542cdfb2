#include "fonti/abbreviazioni_catalogo.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Abbreviazione {
  QLatin1StringView fonteNorm;
  QLatin1StringView catalogo;
};
constexpr Abbreviazione kAbbreviazioni[] = {
    {"l. cost."_L1, "l.cost."_L1},
    {"dir. p.c.m."_L1, "dir.p.c.m."_L1},
    {"d.lg."_L1, "d.lgs."_L1},
};

}  // namespace

QString AbbreviazioneCatalogo(const QString& fonteNorm) {
  for (const Abbreviazione& voce : kAbbreviazioni) {
    if (fonteNorm == voce.fonteNorm) return voce.catalogo;
  }
  return fonteNorm;
}

QString FonteNormDelCatalogo(const QString& abbreviazione) {
  for (const Abbreviazione& voce : kAbbreviazioni) {
    if (abbreviazione == voce.catalogo) return voce.fonteNorm;
  }
  return abbreviazione;
}

}  // namespace torvi
