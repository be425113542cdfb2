#include "archive/legami.h"

namespace torvi {
namespace {

// By the kind of a source `fonte` points to one of four tables, or to none.
constexpr Legame kLegami[] = {
    {"TabDocumento", "IDRifBibl", "TabRifBibl", "IDRifBibl", true},
    {"TabRifBibl", "IDRivista", "TabRivista", "IDRivista", false},
    {"LegameDocTesto", "IDDoc", "TabDocumento", "IDDocumento", false},
    {"LegameDocTesto", "IDTesto", "TabTesto", "IDTesto", false},
    {"LegameDocResp", "IDDoc", "TabDocumento", "IDDocumento", false},
    {"LegameDocResp", "IDResponsabilita", "TabResponsabilita", "IDResponsabilita", false},
    {"LegameDocClass", "IDDoc", "TabDocumento", "IDDocumento", false},
    {"LegameDocClass", "IDClass", "TabClasse2000", "IDClasse2000", false},
    {"LegameDocClass1999", "IDDoc", "TabDocumento", "IDDocumento", false},
    {"LegameDocClass1999", "IDClass", "TabClasse1999", "IDClasse1999", false},
    {"LegameDocFonte", "IDDoc", "TabDocumento", "IDDocumento", false},
    {"LegameDocFonte", "IDFnt", "TabFonte", "IDFonte", false},
    {"TabClasse2000", "IDClasse2000-S", "TabClasse2000-S", "IDClasseS", false},
    {"TabClasse2000", "IDClasse2000-D", "TabClasse2000-D", "IDClasseD", true},
    {"TabClasse1999", "ID_PADRE", "TabClasse1999", "IDClasse1999", true},
    {"TabFonte", "fonte", "TabFonteInterna", "IDFonteInterna", true,
     "substr(a.[TP], 1, 2) IN ('LI', 'GI') OR a.[TP] = 'AC'"},
    {"TabFonte", "fonte", "TabFonteInt", "IDFonteInt", true, "a.[TP] IN ('NIT', 'NIA', 'GEI')"},
    {"TabFonte", "fonte", "TabFonteCom", "IDFonteCom", true, "a.[TP] IN ('NIC', 'GEC')"},
    {"TabFonte", "fonte", "TabFonteCan", "IDFonteCan", true, "a.[TP] IN ('FCC', 'FCG')"},
    {"TabFonte", "IDRegione", "TabRegione", "IDRegione", true},
    {"TabFonte", "IDProvincia", "TabProvincia", "IDProvincia", true},
    {"TabFonte", "IDCitta", "TabCitta", "IDCitta", true},
    {"TabFonte", "IDMinistero", "TabMinistero", "IDMinistero", true},
    {"TabFonte", "IDAmministrazione", "TabAmministrazione", "IDAmministrazione", true},
    {"TabFonte", "IDAutorita", "TabAutorita", "IDAutorita", true},
    {"TabFonte", "IDSezione", "TabSezione", "IDSez", true},
    {"TabFonte", "IDStato", "TabStato", "IDStato", true},
};

}  // namespace

std::span<const Legame> LegamiArchivio() { return kLegami; }

}  // namespace torvi
