#include "document/testi_documento.h"

namespace torvi {
namespace {

using C = CampiDocumento;
using S = StatoGlobale;

constexpr std::array kTesti = {
    TestoDocumento{'0', u"titolo", &C::txtTitolo, nullptr, true, true, true, nullptr, nullptr},
    TestoDocumento{'1', u"riassunto", nullptr, &S::TestoRiassunto, false, true, false,
                   "cmdRiassunto", "write"},
    TestoDocumento{'2', u"sommario", nullptr, &S::TestoSommario, false, true, false, "cmdSommario",
                   "write"},
    TestoDocumento{'3', u"traduzione", nullptr, &S::TestoTraduzione, true, true, true,
                   "cmdTraduzione", "export"},
    TestoDocumento{'4', u"campo nota (desueto)", &C::txtNota, nullptr, true, true, true, nullptr,
                   nullptr},
    TestoDocumento{'5', u"nota al documento", nullptr, &S::TestoNotaDoc, false, false, false,
                   "cmdNotaDoc", "npadwrit"},
    TestoDocumento{'6', u"campo nota", nullptr, &S::TestoNota, true, false, false, "cmdNota",
                   "npad"},
    TestoDocumento{'7', u"in tema di", nullptr, &S::TestoInTemaDi, false, true, false,
                   "cmdInTemaDi", "write"},
    TestoDocumento{'8', u"English abstract", nullptr, &S::TestoEnglishAbstract, false, true, false,
                   "cmdEnglishAbstract", "write"},
};

}  // namespace

std::span<const TestoDocumento> GeneriDiTesto() { return kTesti; }

QString& Valore(Documento& documento, const TestoDocumento& testo) {
  return testo.controllo != nullptr ? documento.campi.*testo.controllo
                                    : documento.stato.*testo.buffer;
}

}  // namespace torvi
