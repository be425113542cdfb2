#include "shell/stati_menu.h"

namespace torvi {
namespace {

// After a new archive mnuFileNuovo stays off on purpose, until an archive was opened and closed.
constexpr std::array kStati = {
    //                           none   open   new    document
    StatoMenu{"mnuFileApri", {true, false, true, false}},
    StatoMenu{"mnuFileNuovo", {true, false, false, false}},
    StatoMenu{"mnuFileChiudi", {false, true, false, true}},
    StatoMenu{"mnuAggiornamento", {false, true, false, false}},
    StatoMenu{"mnuFinestra", {false, true, false, true}},
    StatoMenu{"mnuStampa", {false, true, false, false}},
    StatoMenu{"mnuEsporta", {false, true, false, false}},
    StatoMenu{"mnuUtilita", {true, true, true, false}},
};

}  // namespace

std::span<const StatoMenu> StatiMenu() { return kStati; }

}  // namespace torvi
