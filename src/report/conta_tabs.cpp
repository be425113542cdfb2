#include "report/conta_tabs.h"

#include <algorithm>
#include <numeric>

#include "report/testo_citato.h"

namespace torvi {

using namespace Qt::Literals::StringLiterals;

qint16 Somma(const ConteggiTAbs& conteggi) {
  return Intero16(std::accumulate(conteggi.begin(), conteggi.end(), qint64{0}));
}

ConteggiTAbs ContaTAbs(const Database& archivio, const Campo& idRivista, const QString& fascicolo,
                       const QString& anno) {
  const QChar virgolette(u'"');
  QList<Campo> parametri = {idRivista, TestoCitato(anno, virgolette)};
  if (!fascicolo.isEmpty()) parametri += TestoCitato(fascicolo, virgolette);
  // All types at once: an issue is looked up once, not six times.
  Recordset conto = archivio.OpenRecordset(
      "SELECT TabDocumento.TAbs, count(TabDocumento.TAbs) as n FROM TabDocumento, TabRifBibl WHERE "
      "TabDocumento.IDRifBibl = TabRifBibl.IDRifBibl and TabRifBibl.IDRivista = ? and "
      "right(TabRifBibl.Data,4) = ?"_L1 +
          (fascicolo.isEmpty() ? ""_L1 : " and TabRifBibl.Fascicolo = ?"_L1) +
          " GROUP BY TabDocumento.TAbs"_L1,
      parametri);
  ConteggiTAbs conteggi = {};
  for (; !conto.Eof(); conto.MoveNext()) {
    const QString tAbs = conto.Fields("TAbs").TestoOVuoto();
    const auto* tipo =
        std::ranges::find_if(kTAbs, [&](const char* uno) { return tAbs == QLatin1String(uno); });
    if (tipo == kTAbs.end()) continue;
    conteggi.at(static_cast<std::size_t>(tipo - kTAbs.begin())) = conto.Fields("n").Intero16();
  }
  return conteggi;
}

}  // namespace torvi
