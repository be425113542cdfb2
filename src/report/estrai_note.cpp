#include "export/giro_documenti.h"
#include "report/estrazione.h"
#include "report/estrazioni.h"
#include "shell/consegna.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

void StampaNota(const StatoGlobale& stato, const Campo& documento, FileTesto& file) {
  const Recordset nota = stato.DbArchivio.OpenRecordset(
      u"select * from legameDocTesto, tabTesto where legameDocTesto.IDDoc = ? "
      "and legameDocTesto.Tipo = '5' and legameDocTesto.IDTesto = tabTesto.IDTesto"_s,
      {documento});
  if (nota.Eof()) return;
  file.Print(stato.PrefissoDoc + NumeroDoc(stato) + " (Record: "_L1 + documento.Testo() +
             QLatin1Char(')'));
  for (const QString& riga : nota.Fields("testo").Testo().split(u'\\')) file.Print(riga);
  file.Print({});
}

}  // namespace

void EstraiNote(StatoGlobale& stato, Dialoghi& dialoghi) {
  Estrai(stato, dialoghi, {"note."_L1, "note"_L1}, [&](FileTesto& file) {
    GiraDocumenti(stato, dialoghi, u"Estrazione note"_s, u"from tabDocumento"_s,
                  [&](const Recordset& documento) {
                    StampaNota(stato, documento.Fields("IDDocumento"), file);
                    stato.ContatoreDoc = Intero16(stato.ContatoreDoc + 1);
                  });
  });
}

}  // namespace torvi
