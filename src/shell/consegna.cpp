#include "shell/consegna.h"

#include <algorithm>
#include <cmath>

#include "archive/errore.h"
#include "shell/marcatori.h"
#include "shell/valori.h"

namespace torvi {
namespace {

// Halves go to the even number, and what no 16-bit counter can hold must not wrap on the way.
qint16 NumeroIniziale(const QString& testo) {
  constexpr double kOltre = 100000;
  return Intero16(static_cast<qint64>(std::nearbyint(std::clamp(Val(testo), -kOltre, kOltre))));
}

ErroreEsecuzione InfoVuota(const StatoGlobale& stato) {
  return ErroreEsecuzione(Errore::NessunRecordCorrente,
                          QStringLiteral("TabInfo è vuota in ") + stato.DbArchivio.Name());
}

}  // namespace

void LeggiInfoConsegna(StatoGlobale& stato) {
  const std::vector<Riga> righe =
      stato.DbArchivio.LeggiRighe(QStringLiteral("select * from TabInfo"));
  if (righe.empty()) throw InfoVuota(stato);
  const Riga& info = righe.front();
  stato.PrefissoDoc =
      info.Fields("AnnoProduzione").Testo() + info.Fields("IDCentroSpoglio").Testo();
  stato.ContatoreDoc = NumeroIniziale(info.Fields("NumInizio").Testo());
  stato.SiglaConsegna = info.Fields("Consegna").Testo();
  if (righe.size() > 1) {
    throw ErroreEsecuzione::ConDescrizione(
        Errore::OggettoNonTrovato,
        QStringLiteral("TabInfo ha più di una riga: non si sa di quale consegna sia l'archivio ") +
            stato.DbArchivio.Name());
  }
}

QString NumeroDoc(const StatoGlobale& stato) {
  return RiempiZeri(QString::number(stato.ContatoreDoc), 4);
}

QString NumeroIntero(const StatoGlobale& stato, qint64 contatore) {
  return stato.PrefissoDoc + RiempiZeri(QString::number(contatore), 4);
}

void RegistraUsoFunzione(const StatoGlobale& stato, const QString& codice) {
  Recordset info = stato.DbArchivio.OpenRecordset(QStringLiteral("TabInfo"));
  if (info.Eof()) throw InfoVuota(stato);
  info.Edit();
  for (const Marcatore& marcatore : kMarcatori) {
    if (codice == marcatore.codice) info.Assegna(marcatore.colonna, "1");
  }
  info.Update();
}

}  // namespace torvi
