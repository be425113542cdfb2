#include "report/prospetto.h"

namespace torvi {

void ComandoStampaProspetto(StatoGlobale& stato, Dialoghi& dialoghi) {
  const bool rtf = dialoghi.Domanda(QStringLiteral("Per formato RTF: yes, per formato HTML: no"),
                                    {}, Pulsanti::SiNo) == Risposta::Si;
  if (rtf) {
    ProspettoRTF(stato, dialoghi);
  } else {
    ProspettoHTML(stato, dialoghi);
  }
}

}  // namespace torvi
