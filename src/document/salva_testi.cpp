#include "document/carica_parti.h"
#include "document/salva_parti.h"
#include "document/testi_documento.h"

namespace torvi {
namespace {

QString Normalizzato(QString valore, const TestoDocumento& testo) {
  if (testo.senzaRitorni) valore.remove(QStringLiteral("\r\n"));
  if (testo.senzaTabulazioni) valore.remove(QLatin1Char('\t'));
  if (testo.senzaPuntoFinale && valore.endsWith(QLatin1Char('.'))) valore.chop(1);
  return valore;
}

// The texts of one kind go with their links.
void TogliTesto(const Database& archivio, qint64 idDoc, const QString& tipo) {
  Recordset legami = archivio.OpenRecordset(
      QStringLiteral("select LegameDocTesto.* from LegameDocTesto where LegameDocTesto.IDDoc = ?"),
      {idDoc});
  for (; !legami.Eof(); legami.MoveNext()) {
    if (legami.Fields("tipo").TestoOVuoto() != tipo) continue;
    const Campo idTesto = legami.Fields("IDTesto");
    legami.Delete();
    archivio.Execute(QStringLiteral("delete from TabTesto where IDTesto = ?"), {idTesto});
  }
}

void SalvaTesto(Documento& documento, Recordset& testi, Recordset& legami,
                const TestoDocumento& testo) {
  const QString tipo(QLatin1Char(testo.tipo));
  if (!documento.SalvaComeNuovo) {
    TogliTesto(documento.stato.DbArchivio, NumeroDocumento(documento), tipo);
  }
  const QString& valore = Valore(documento, testo);
  if (valore.isEmpty()) return;
  testi.AddNew();
  testi.Assegna("testo", Normalizzato(valore, testo));
  testi.Update();
  testi.Bookmark(testi.LastModified());
  legami.AddNew();
  legami.Assegna("IDTesto", static_cast<qint64>(testi.Fields("IDTesto").Intero16()));
  legami.Assegna("idDoc", NumeroDocumento(documento));
  legami.Assegna("tipo", tipo);
  legami.Update();
}

}  // namespace

void SalvaTesti(Documento& documento) {
  const Database& archivio = documento.stato.DbArchivio;
  Recordset testi = archivio.OpenRecordset(QStringLiteral("TabTesto"));
  Recordset legami = archivio.OpenRecordset(QStringLiteral("LegameDocTesto"));
  for (const TestoDocumento& testo : GeneriDiTesto()) {
    SalvaTesto(documento, testi, legami, testo);
  }
}

}  // namespace torvi
