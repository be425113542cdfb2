#include "shell/stati_menu.h"

namespace torvi {
namespace {

// After a new archive mnuFileNuovo stays off on purpose, until an archive was opened and closed.
constexpr std::array kStati = {
    //                           none   open   new
    StatoMenu{"mnuFileApri", {true, false, true}},
    StatoMenu{"mnuFileNuovo", {true, false, false}},
    StatoMenu{"mnuFileChiudi", {false, true, false}},
    StatoMenu{"mnuAggiornamento", {false, true, false}},
    StatoMenu{"mnuFinestra", {false, true, false}},
    StatoMenu{"mnuStampa", {false, true, false}},
    StatoMenu{"mnuEsporta", {false, true, false}},
    StatoMenu{"mnuUtilita", {true, true, true}},
};

}  // namespace

std::span<const StatoMenu> StatiMenu() { return kStati; }

}  // namespace torvi
