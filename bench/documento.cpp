// What an operator waits for in a large archive: a document opened, a document saved, titles
// searched.
//
// usage: misura_documento [options of the library]
//
// TORVI_ARCHIVIO names the archive to measure, which is copied first. Without it one of 20,000
// documents is made: a sample delivery of 2,000, the others with a title alone. More texts would
// leave no room for those that the saves add: their numbers fit 16 signed bits.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <random>
#include <vector>

#include "archive/esempio.h"
#include "comune/dialoghi_scritti.h"
#include "document/carica.h"
#include "document/ricerca.h"
#include "document/salva.h"

namespace torvi {
namespace {

constexpr int kDocumenti = 20'000;
constexpr int kCompleti = 2'000;
constexpr int kSalvataggi = 500;

void AggiungiConTitolo(const Database& archivio, int quanti) {
  const UnitaDiScrittura unita(archivio);
  Recordset documenti = archivio.OpenRecordset(QStringLiteral("TabDocumento"));
  Recordset testi = archivio.OpenRecordset(QStringLiteral("TabTesto"));
  Recordset legami = archivio.OpenRecordset(QStringLiteral("LegameDocTesto"));
  Recordset modelli = archivio.OpenRecordset(QStringLiteral("TabTesto"));
  for (int i = 0; i < quanti; ++i) {
    documenti.AddNew();
    documenti.Assegna("IDRifBibl", i % kCompleti / 5 + 1);
    documenti.Assegna("LIN", "00");
    for (const char* codice : {"Bib", "td", "TAbs"}) documenti.Assegna(codice, "");
    documenti.Update();
    testi.AddNew();
    testi.Assegna("testo", modelli.Fields("testo").TestoOVuoto().left(90));
    testi.Update();
    modelli.MoveNext();
    legami.AddNew();
    legami.Assegna("IDDoc", documenti.LastModified());
    legami.Assegna("IDTesto", testi.LastModified());
    legami.Assegna("Tipo", "0");
    legami.Update();
  }
}

// A copy that the measures may change, open as the program has it.
class Prova {
 public:
  Prova() {
    const QString percorso = cartella_.filePath(QStringLiteral("misura.mdb"));
    const QString dato = qEnvironmentVariable("TORVI_ARCHIVIO");
    if (dato.isEmpty()) {
      CreaEsempio(percorso, {}, kCompleti);
    } else {
      QFile::copy(dato, percorso);
    }
    stato.DbArchivio = OpenDatabase(percorso);
    if (dato.isEmpty()) AggiungiConTitolo(stato.DbArchivio, kDocumenti - kCompleti);
    Recordset documenti = stato.DbArchivio.OpenRecordset(QStringLiteral("TabDocumento"));
    for (; !documenti.Eof(); documenti.MoveNext()) {
      numeri_.push_back(documenti.Fields("IDDocumento").Testo());
      if (numeri_.size() == kCompleti) break;
    }
    stato.IDDocumentoScelto = numeri_.front();
    CaricaForma(documento);
  }

  // A document with all its texts, sources and people, any of them.
  void Scegli() {
    std::uniform_int_distribution<std::size_t> quale(0, numeri_.size() - 1);
    documento.campi.txtID = numeri_[quale(sorte_)];
  }

  StatoGlobale stato;
  DialoghiScritti dialoghi;
  Documento documento{stato, dialoghi};

 private:
  QTemporaryDir cartella_;
  std::vector<QString> numeri_;
  std::minstd_rand sorte_;
};

Prova& Archivio() {
  static Prova prova;
  return prova;
}

void Carica(benchmark::State& misura) {
  Prova& prova = Archivio();
  for (auto _ : misura) {
    prova.Scegli();
    SvuotaDocumento(prova.documento);
    CaricaDocumento(prova.documento);
  }
}
BENCHMARK(Carica)->Unit(benchmark::kMillisecond)->UseRealTime();

void Cerca(benchmark::State& misura) {
  Prova& prova = Archivio();
  const auto titolo = std::ranges::find_if(CampiRicerca(), [](const CampoRicerca& campo) {
    return QStringView(campo.voce) == u"Titolo";
  });
  for (auto _ : misura) {
    RisultatoRicerca risultato;
    EseguiRicerca(prova.stato, prova.dialoghi, &*titolo, ModoCampo::Tutte,
                  QStringLiteral("responsabilità civile"), risultato);
    benchmark::DoNotOptimize(risultato);
  }
}
BENCHMARK(Cerca)->Unit(benchmark::kMillisecond)->UseRealTime();

// Last: it changes the archive. The number of rounds is bounded by the numbers of the texts.
void Salva(benchmark::State& misura, bool nuovo) {
  Prova& prova = Archivio();
  for (auto _ : misura) {
    misura.PauseTiming();
    prova.Scegli();
    SvuotaDocumento(prova.documento);
    CaricaDocumento(prova.documento);
    prova.documento.SalvaComeNuovo = nuovo;
    misura.ResumeTiming();
    SalvaDocumento(prova.documento);
  }
}
BENCHMARK_CAPTURE(Salva, InPosto, false)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(kSalvataggi);
BENCHMARK_CAPTURE(Salva, Nuovo, true)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(kSalvataggi);

}  // namespace
}  // namespace torvi

BENCHMARK_MAIN();
