#include "document/carica_parti.h"
#include "document/testi_documento.h"

namespace torvi {

void SvuotaTesti(Documento& documento) {
  for (const TestoDocumento& testo : GeneriDiTesto()) {
    if (testo.buffer != nullptr) Valore(documento, testo).clear();
  }
}

void CaricaTesti(Documento& documento) {
  const Database& archivio = documento.stato.DbArchivio;
  documento.campi.icone.fill(false);
  SvuotaTesti(documento);
  Recordset testi = archivio.OpenRecordset(QStringLiteral("TabTesto"));
  testi.Index("PrimaryKey");
  Recordset legami = archivio.OpenRecordset(
      QStringLiteral("select * from legameDocTesto where IDDoc = ?"), {NumeroDocumento(documento)});
  for (; !legami.Eof(); legami.MoveNext()) {
    testi.Seek(legami.Fields("IDTesto"));
    const QString tipo = legami.Fields("tipo").TestoOVuoto();
    for (std::size_t i = 0; i < GeneriDiTesto().size(); ++i) {
      const TestoDocumento& testo = GeneriDiTesto()[i];
      if (tipo != QLatin1Char(testo.tipo)) continue;
      // After a seek without a match there is no row to read.
      if (testi.NoMatch()) {
        documento.testiMancanti += QString::fromUtf16(testo.nome);
        continue;
      }
      Valore(documento, testo) = testi.Fields("testo").TestoOVuoto();
      documento.campi.icone.at(i) = testo.pulsante != nullptr;
    }
  }
}

}  // namespace torvi
