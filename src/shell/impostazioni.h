// The settings of an installation: keys of "TorviEditor.ini" in the application folder, which may
// be absent, and so may each key.
#pragma once

#include <QString>

namespace torvi {

enum class Impostazione {
  CartellaClassificazione,  // sources of the classification loaders
  IndirizzoCelex,           // of the service, without path and without a final slash
  IndirizzoHudoc,
};

// The value as the file has it, or the default. A folder that is not absolute is meant below the
// application folder.
[[nodiscard]] QString LeggiImpostazione(const QString& cartellaApplicazione, Impostazione quale);

}  // namespace torvi
