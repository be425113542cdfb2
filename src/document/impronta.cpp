#include "document/impronta.h"

#include "document/carica_parti.h"

namespace torvi {
namespace {

struct Parte {
  const char16_t* nome;
  const char16_t* righe;
};
// Values and no keys, where a save makes new rows of what stayed the same.
constexpr Parte kParti[] = {
    {u"codici e pagine",
     u"select pagine, LIN, Bib, td, TAbs from TabDocumento where IDDocumento = ?"},
    {u"riferimenti bibliografici",
     u"select TabRifBibl.IDRivista, TabRifBibl.Fascicolo, TabRifBibl.Annata, TabRifBibl.Volume, "
     u"TabRifBibl.Parte, TabRifBibl.Serie, TabRifBibl.Supplemento, TabRifBibl.Sezione, "
     u"TabRifBibl.Data from TabDocumento, TabRifBibl where TabDocumento.IDDocumento = ? and "
     u"TabDocumento.IDRifBibl = TabRifBibl.IDRifBibl"},
    {u"responsabilità",
     u"select LegameDocResp.FlagAutore, TabResponsabilita.PrimoElemento, "
     u"TabResponsabilita.SecondoElemento from LegameDocResp, TabResponsabilita where "
     u"LegameDocResp.IDDoc = ? and LegameDocResp.IDResponsabilita = "
     u"TabResponsabilita.IDResponsabilita"},
    {u"testi",
     u"select LegameDocTesto.Tipo, TabTesto.testo from LegameDocTesto, TabTesto where "
     u"LegameDocTesto.IDDoc = ? and LegameDocTesto.IDTesto = TabTesto.IDTesto"},
    {u"classificazione", u"select IDClass from LegameDocClass where IDDoc = ?"},
    {u"classificazione ante 2000", u"select IDClass from LegameDocClass1999 where IDDoc = ?"},
    {u"fonti", u"select IDFnt from LegameDocFonte where IDDoc = ?"},
};

// Values between signs that no text has, so that two rows never read alike.
QString Impronta(const Database& archivio, const Parte& parte, qint64 numero) {
  QString impronta;
  Recordset righe = archivio.OpenRecordset(QString::fromUtf16(parte.righe), {numero});
  for (; !righe.Eof(); righe.MoveNext()) {
    for (int colonna = 0; colonna < righe.QuanteColonne(); ++colonna) {
      const Campo valore = righe.Fields(colonna);
      impronta += (valore.Nullo() ? QString(QChar(1)) : valore.Testo()) + QChar(2);
    }
    impronta += QChar(3);
  }
  return impronta;
}

}  // namespace

std::map<QString, QString> LeggiImpronta(const Database& archivio, qint64 numero) {
  std::map<QString, QString> parti;
  for (const Parte& parte : kParti) {
    parti.emplace(QString::fromUtf16(parte.nome), Impronta(archivio, parte, numero));
  }
  return parti;
}

void RiconosciArchiviato(Documento& documento) {
  documento.numeroSuo = NumeroDocumento(documento);
  documento.numeroMostrato = documento.numeroSuo;
  documento.impronta = LeggiImpronta(documento.stato.DbArchivio, documento.numeroSuo);
}

QStringList PartiCambiate(const Documento& documento) {
  QStringList cambiate;
  const auto ora = LeggiImpronta(documento.stato.DbArchivio, documento.numeroSuo);
  for (const Parte& parte : kParti) {
    const QString nome = QString::fromUtf16(parte.nome);
    if (ora.at(nome) != documento.impronta.at(nome)) cambiate += nome;
  }
  return cambiate;
}

}  // namespace torvi
