// The frame that the extractions share.
#pragma once

#include <functional>

#include "report/uscita_consegna.h"
#include "shell/dialoghi.h"

namespace torvi {

struct Estrazione {
  QLatin1StringView file;  // before the delivery's name
  QLatin1StringView cosa;  // of the closing message
};

// Reads the delivery's data, opens its output, has it filled and closed, and says so.
void Estrai(StatoGlobale& stato, Dialoghi& dialoghi, const Estrazione& estrazione,
            const std::function<void(FileTesto&)>& riempi);

}  // namespace torvi
