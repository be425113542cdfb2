#include "document/impronta.h"

#include "document/carica_parti.h"

namespace torvi {
namespace {

struct Parte {
  const char16_t* nome;
  const char16_t* righe;
};
constexpr Parte kParti[] = {
    {u"riferimenti bibliografici",
     u"select * from TabDocumento where TabDocumento.IDDocumento = ?"},
    {u"responsabilità", u"select * from LegameDocResp where LegameDocResp.IDDoc = ?"},
    {u"testi",
     u"select * from LegameDocTesto, TabTesto where LegameDocTesto.IDDoc = ? and "
     u"LegameDocTesto.IDTesto = TabTesto.IDTesto"},
    {u"classificazione", u"select * from LegameDocClass where LegameDocClass.IDDoc = ?"},
    {u"classificazione ante 2000",
     u"select * from LegameDocClass1999 where LegameDocClass1999.IDDoc = ?"},
    {u"fonti", u"select * from LegameDocFonte where LegameDocFonte.IDDoc = ?"},
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
