#include "document/testo_breve.h"

#include <algorithm>
#include <array>

#include "archive/errore.h"
#include "archive/recordset.h"

namespace torvi {
namespace {

constexpr std::array<TestoBreve, 3> kTesti = {{
    {"Traduzione", '3', &StatoGlobale::TestoTraduzione, false},
    {"NotaDoc", '5', &StatoGlobale::TestoNotaDoc, true},
    {"Nota", '6', &StatoGlobale::TestoNota, false},
}};

QString TestoInArchivio(const Database& archivio, char tipo, qint64 numeroDocumento) {
  const Recordset legame = archivio.OpenRecordset(
      QStringLiteral("SELECT IDDoc, IDTesto, Tipo FROM LegameDocTesto WHERE IDDoc = ? and Tipo = "
                     "'%1'")
          .arg(QLatin1Char(tipo)),
      {numeroDocumento});
  if (legame.Eof()) return {};
  Recordset testi = archivio.OpenRecordset(QStringLiteral("TabTesto"));
  testi.Index("PrimaryKey");
  testi.Seek(legame.Fields("IDTesto"));
  if (testi.NoMatch()) return {};
  return testi.Fields("testo").TestoOVuoto();
}

}  // namespace

const TestoBreve& TrovaTestoBreve(const QString& nome) {
  const auto* trovato = std::ranges::find_if(
      kTesti, [&nome](const TestoBreve& breve) { return nome == QLatin1String(breve.nome); });
  if (trovato == kTesti.end()) throw ErroreEsecuzione(Errore::ChiamataNonValida, nome);
  return *trovato;
}

QString CaricaTestoBreve(const StatoGlobale& stato, const TestoBreve& breve,
                         qint64 numeroDocumento) {
  const QString& buffer = stato.*breve.buffer;
  const bool cancellato = breve.siCancella && stato.NotaDocCancellata;
  if (!buffer.isEmpty() || stato.DocumentoNuovo || cancellato) return buffer;
  return TestoInArchivio(stato.DbArchivio, breve.tipo, numeroDocumento);
}

void EsciTestoBreve(StatoGlobale& stato, const TestoBreve& breve, const QString& testo) {
  stato.*breve.buffer = testo;
  if (breve.siCancella && !testo.isEmpty()) stato.NotaDocCancellata = true;
}

}  // namespace torvi
