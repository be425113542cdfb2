#include "archive/legami.h"

namespace torvi {
namespace {

// `fonte` of TabFonte points to one of four tables by the kind of the source, and is not here.
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
