// What an operator waits for while sources are entered: a citation composed at every key, a
// document with fifty sources saved, an act sought in the catalogue of norms by a word of its
// title.
//
// usage: misura_fonti [options of the library]
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>
#include <array>

#include "archive/esempio.h"
#include "archive/master.h"
#include "archive/schema.h"
#include "comune/dialoghi_scritti.h"
#include "document/carica.h"
#include "document/salva.h"
#include "fonti/interroga_catalogo.h"
#include "fonti/salva_fonte.h"

namespace torvi {
namespace {

constexpr int kDocumenti = 2'000;
constexpr int kFonti = 100'000;  // in the archive, besides those of the documents
constexpr int kFontiDocumento = 50;
constexpr int kSalvataggi = 200;
constexpr std::size_t kAtti = 200'000;

// Legal texts differ in all but their kind.
RigaFonte Fonte(int numero) {
  RigaFonte riga;
  riga.TP = QStringLiteral("NS");
  riga.Articolo = QString::number(numero % 1'000);
  riga.Anno = QString::number(1900 + numero % 120);
  riga.Stato = QStringLiteral("Francia");
  riga.Testo = QStringLiteral("art. %1 Loi %2, n. %3 (Francia)")
                   .arg(riga.Articolo, riga.Anno, QString::number(numero));
  return riga;
}

class Prova {
 public:
  Prova() {
    const QString percorso = cartella_.filePath(QStringLiteral("misura.mdb"));
    CreaEsempio(percorso, {}, kDocumenti);
    stato.DbArchivio = OpenDatabase(percorso);
    stato.NuovaFonte = true;
    AggiungiFonti();
    stato.IDDocumentoScelto = stato.DbArchivio.OpenRecordset(QStringLiteral("TabDocumento"))
                                  .Fields("IDDocumento")
                                  .Testo();
    CaricaForma(documento);
  }

  // Half of the sources are in the archive; the others are an act of which no two rows are the
  // same.
  void ScegliFonti() {
    stato.RigheFonte.clear();
    for (int i = 0; i < kFontiDocumento; ++i) {
      RigaFonte& riga = stato.RigheFonte.emplace_back(Fonte(i % 2 == 0 ? i * 1'999 : ++ultima_));
      if (i % 2 == 0) continue;
      riga.TP = QStringLiteral("LIO");
      riga.FonteNorm = QStringLiteral("d.p.r.");
      riga.Stato.clear();
    }
  }

  StatoGlobale stato;
  DialoghiScritti dialoghi;
  Documento documento{stato, dialoghi};

 private:
  void AggiungiFonti() {
    UnitaDiScrittura unita(stato.DbArchivio);
    Recordset stati = stato.DbArchivio.OpenRecordset(QStringLiteral("TabStato"));
    stati.Index("Stato");
    stati.Seek(QStringLiteral("Francia"));
    const Campo francia = stati.Fields("IDStato");
    Recordset fonti = stato.DbArchivio.OpenRecordset(QStringLiteral("tabFonte"));
    for (int numero = 0; numero < kFonti; ++numero) {
      const RigaFonte riga = Fonte(numero);
      fonti.AddNew();
      for (const char* vuota : {"comma", "lettera", "allegato", "ripa", "ripc", "numero", "numeroP",
                                "giorno", "altro"}) {
        fonti.Assegna(vuota, "");
      }
      fonti.Assegna("tp", riga.TP);
      fonti.Assegna("articolo", riga.Articolo);
      fonti.Assegna("anno", riga.Anno);
      fonti.Assegna("mese", "0");
      fonti.Assegna("testo", riga.Testo);
      fonti.Assegna("IDStato", francia);
      fonti.Update();
    }
    unita.Concludi();
  }

  QTemporaryDir cartella_;
  int ultima_ = kFonti;
};

Prova& Archivio() {
  static Prova prova;
  return prova;
}

using Salvataggio = EsitoFonte (*)(StatoGlobale&, Dialoghi&, const ControlliFonte&);
struct Citazione {
  Salvataggio salva;
  ControlliFonte controlli;
};

// One of each composer; a treaty is read from the archive.
std::array<Citazione, 7> Citazioni() {
  ControlliFonte c;
  c.indice = 2;
  c.ComboFonte = QStringLiteral("Atti statali aventi forza di legge");
  c.lstFonte = QStringLiteral("l.");
  c.txtGG = QStringLiteral("12");
  c.ComboMese = QStringLiteral("marzo");
  c.txtAA = QStringLiteral("2001");
  c.txtN = QStringLiteral("5");
  c.txtArt = QStringLiteral("3");
  c.ComboRipA = QStringLiteral("bis");
  c.txtComma = QStringLiteral("2");
  c.txtLett = QStringLiteral("a");
  c.txtInfo1 = QStringLiteral("Roma");
  c.txtLibero = QStringLiteral("1) Alfa c. Beta");
  c.txtStato = QStringLiteral("Francia");
  const auto altra = [&c](int indice, const char16_t* voce, const char16_t* atto) {
    ControlliFonte altri = c;
    altri.indice = indice;
    altri.ComboFonte = QString::fromUtf16(voce);
    altri.lstFonte = QString::fromUtf16(atto);
    return altri;
  };
  return {
      Citazione{SalvaFonteInterna, c},
      {SalvaFonteInterna, altra(3, u"Giurisprudenza ordinaria", u"Trib.")},
      {SalvaFonteAltra, altra(1, u"Fonti normative (*NIC*) - Diritto derivato", u"Reg. CE")},
      {SalvaFonteAltra, altra(2, u"Fonti normative (*NS*)", u"")},
      {SalvaFonteAltra, altra(3, u"Fonti giurisprudenziali (*FCG*)", u"Rota rom.")},
      {SalvaFonteAltra, altra(4, u"Altre fonti (*FSA*)", u"letterarie (*FSAL*)")},
      {SalvaFonteAltra, altra(0, u"Trattati, accordi, convenzioni internazionali (*NIT*)", u"")}};
}

// The last six are of other law. The number is that of Citazioni().
void Componi(benchmark::State& misura) {
  Prova& prova = Archivio();
  const Citazione citazione = Citazioni().at(static_cast<std::size_t>(misura.range(0)));
  for (auto _ : misura) {
    prova.stato.RigheFonte.clear();
    const EsitoFonte esito = citazione.salva(prova.stato, prova.dialoghi, citazione.controlli);
    if (esito != EsitoFonte::Composta) misura.SkipWithError("not composed");
  }
}
BENCHMARK(Componi)->DenseRange(0, 6)->Unit(benchmark::kMicrosecond);

void Salva(benchmark::State& misura) {
  Prova& prova = Archivio();
  for (auto _ : misura) {
    misura.PauseTiming();
    SvuotaDocumento(prova.documento);
    CaricaDocumento(prova.documento);
    prova.ScegliFonti();
    misura.ResumeTiming();
    SalvaDocumento(prova.documento);
  }
}
BENCHMARK(Salva)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(kSalvataggi);

// The catalogue that comes with the program over and over, each act with a number of its own.
class Norme {
 public:
  Norme() {
    QDir(cartella_.path()).mkdir(QStringLiteral("mdb"));
    const QString percorso = cartella_.filePath(QStringLiteral("mdb/catalogo norme.mdb"));
    CreaCatalogo(percorso);
    const Database catalogo = OpenDatabase(percorso);
    UnitaDiScrittura unita(catalogo);
    const auto modelli = catalogo.LeggiRighe(QStringLiteral("select * from tabCatalogo"));
    Recordset atti = catalogo.OpenRecordset(QStringLiteral("tabCatalogo"));
    for (std::size_t numero = modelli.size(); numero < kAtti; ++numero) {
      const Riga& modello = modelli[numero % modelli.size()];
      atti.AddNew();
      atti.Assegna(
          "titolo",
          QStringLiteral("%1, serie %2.").arg(modello.Fields("titolo").Testo()).arg(numero));
      atti.Assegna("numero", QString::number(numero));
      atti.Assegna("pd", QString::number(numero));
      for (const char* colonna : {"anno", "abbreviazione", "promulgazione", "estremi"}) {
        atti.Assegna(colonna, modello.Fields(colonna));
      }
      atti.Update();
    }
    unita.Concludi();
    interrogazione.Apri(cartella_.path());
  }
  InterrogazioneCatalogo interrogazione;

 private:
  QTemporaryDir cartella_;
};

void Cerca(benchmark::State& misura, const char* parole) {
  static const Norme norme;
  DomandaCatalogo domanda;
  domanda.modo = ModoCampo::Tutte;
  domanda.txtCatalogoParola = QString::fromUtf8(parole);
  qsizetype trovati = 0;
  for (auto _ : misura) trovati = norme.interrogazione.Cerca(IstruzioneCatalogo(domanda)).size();
  misura.counters["trovati"] = static_cast<double>(trovati);
}
BENCHMARK_CAPTURE(Cerca, Nessuno, "usucapione")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Cerca, Uno, "100000.")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Cerca, Molti, "penale")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace torvi

BENCHMARK_MAIN();
