#include "document/testi_documento.h"

namespace torvi {
namespace {

using C = CampiDocumento;
using S = StatoGlobale;

constexpr std::array kTesti = {
    TestoDocumento{'0', &C::txtTitolo, nullptr, true, true, true, nullptr, nullptr},
    TestoDocumento{'1', nullptr, &S::TestoRiassunto, false, true, false, "cmdRiassunto", "write"},
    TestoDocumento{'2', nullptr, &S::TestoSommario, false, true, false, "cmdSommario", "write"},
    TestoDocumento{'3', nullptr, &S::TestoTraduzione, true, true, true, "cmdTraduzione", "export"},
    TestoDocumento{'4', &C::txtNota, nullptr, true, true, true, nullptr, nullptr},
    TestoDocumento{'5', nullptr, &S::TestoNotaDoc, false, false, false, "cmdNotaDoc", "npadwrit"},
    TestoDocumento{'6', nullptr, &S::TestoNota, true, false, false, "cmdNota", "npad"},
    TestoDocumento{'7', nullptr, &S::TestoInTemaDi, false, true, false, "cmdInTemaDi", "write"},
    TestoDocumento{'8', nullptr, &S::TestoEnglishAbstract, false, true, false, "cmdEnglishAbstract",
                   "write"},
};

}  // namespace

std::span<const TestoDocumento> GeneriDiTesto() { return kTesti; }

QString& Valore(Documento& documento, const TestoDocumento& testo) {
  return testo.controllo != nullptr ? documento.campi.*testo.controllo
                                    : documento.stato.*testo.buffer;
}

}  // namespace torvi
