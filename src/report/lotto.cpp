#include "report/lotto.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>
#include <array>
#include <optional>

#include "archive/errore.h"
#include "export/catalogo_norme.h"
#include "export/esporta_ascii.h"
#include "report/estrazioni.h"
#include "report/sigle.h"
#include "report/stampa_html.h"
#include "shell/apertura.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

template <const FlagEsportazione& flag>
void Esporta(StatoGlobale& stato, Dialoghi& dialoghi, CatalogoNorme& catalogo) {
  EsportaAscii(stato, dialoghi, flag, catalogo);
}

template <auto routine>
void SenzaCatalogo(StatoGlobale& stato, Dialoghi& dialoghi, CatalogoNorme& /*catalogo*/) {
  routine(stato, dialoghi);
}

constexpr std::array kVoci = {
    VoceLotto{"isis", Lotto::Isis, "lexxdump isis."_L1, {}, Esporta<kEsportaIsis>},
    VoceLotto{"cassazione",
              Lotto::Cassazione,
              "lexxdump cassazione."_L1,
              {},
              Esporta<kEsportaCassazione>},
    VoceLotto{"storico", Lotto::Storico, "lexxdump storico."_L1, {}, Esporta<kEsportaStorico>},
    VoceLotto{"celex", Lotto::Celex, "StampaHTML "_L1, ".htm"_L1, SenzaCatalogo<StampaHTMLCelex>},
    VoceLotto{"hudoc", Lotto::Hudoc, "StampaHTML_GEI "_L1, ".htm"_L1,
              SenzaCatalogo<StampaHTMLHudoc>},
    VoceLotto{"note", Lotto::Note, "note."_L1, {}, SenzaCatalogo<EstraiNote>},
    VoceLotto{"nuovi", Lotto::Nuovi, "nuovi."_L1, {}, SenzaCatalogo<EstraiNuovi>},
    VoceLotto{"conteggio", Lotto::Conteggio, "conteggio."_L1, {}, nullptr},
};

QString Guasto(const ErroreEsecuzione& errore) {
  return QString::number(errore.Numero()) + " --> "_L1 + errore.Descrizione();
}

QString NomeUscita(const VoceLotto& voce, const QString& fileSigle) {
  constexpr qsizetype kEstensione = 3;  // of the whole path, whatever the name looks like
  return voce.uscita + fileSigle.right(kEstensione) + voce.coda;
}

const VoceLotto& Voce(Lotto lotto) { return *std::ranges::find(kVoci, lotto, &VoceLotto::lotto); }

// The open file of a count, and what it has counted so far.
struct Conteggio {
  explicit Conteggio(const QString& percorso) : file(percorso, Apertura::Scrittura) {}
  FileTesto file;
  qint64 documenti = 0;
};

class Giro {
 public:
  Giro(StatoGlobale& stato, Dialoghi& dialoghi, const VoceLotto& voce)
      : stato_(stato), dialoghi_(dialoghi), voce_(voce), catalogo_(stato.CartellaApplicazione) {}

  void Fa(AlGuasto alGuasto, EsitoLotto& esito) {
    const QStringList sigle = LeggiSigle(stato_.FileBatch);
    esito.consegne = sigle.size();
    stato_.FileBatch = FileUscita(stato_.CartellaApplicazione, NomeUscita(voce_, stato_.FileBatch));
    if (voce_.operazione == nullptr) conteggio_.emplace(stato_.FileBatch);
    const auto finito = qScopeGuard([this] { dialoghi_.Ambito({}); });
    for (const QString& sigla : sigle) {
      dialoghi_.Ambito(u"%1 (%2 di %3): "_s.arg(sigla)
                           .arg(esito.fatte + esito.fallite.size() + 1)
                           .arg(sigle.size()));
      FaConsegna(sigla, alGuasto, esito);
    }
    if (conteggio_) ChiudiConteggio(esito.fatte);
    esito.riuscito = esito.fallite.isEmpty();
  }

 private:
  void FaConsegna(const QString& sigla, AlGuasto alGuasto, EsitoLotto& esito) {
    const qint64 prima = QFileInfo(stato_.FileBatch).size();
    try {
      stato_.DbArchivio =
          ApriArchivio(FileArchivio(stato_.CartellaApplicazione, sigla + ".mdb"_L1), dialoghi_);
      Opera();
      stato_.DbArchivio.Close();
      ++esito.fatte;
    } catch (const ErroreEsecuzione& errore) {
      esito.fallite += sigla;
      if (alGuasto == AlGuasto::Ferma) throw;
      if (!conteggio_) QFile::resize(stato_.FileBatch, prima);
      dialoghi_.Messaggio(u"Consegna %1: %2"_s.arg(sigla, Guasto(errore)));
    }
  }

  void Opera() {
    if (!conteggio_) {
      voce_.operazione(stato_, dialoghi_, catalogo_);
      return;
    }
    dialoghi_.Avanzamento(u"Conteggio documenti"_s, 0, 0);
    conteggio_->documenti += ContaDocumentiConsegna(stato_, conteggio_->file);
  }

  void ChiudiConteggio(qsizetype consegne) {
    conteggio_->file.Print(
        u"%1 documenti in %2 consegne"_s.arg(conteggio_->documenti).arg(consegne));
    conteggio_->file.Close();
    dialoghi_.FileScritto(stato_.FileBatch);
  }

  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  const VoceLotto& voce_;
  CatalogoNorme catalogo_;
  std::optional<Conteggio> conteggio_;
};

}  // namespace

std::span<const VoceLotto> VociLotto() { return kVoci; }

EsitoLotto EseguiLotto(StatoGlobale& stato, Dialoghi& dialoghi, Lotto lotto, AlGuasto alGuasto) {
  EsitoLotto esito;
  stato.ModoBatch = true;
  stato.FileBatch.clear();
  stato.FileBatch =
      dialoghi.ScegliFileUscita(stato.CartellaApplicazione + "/mdb"_L1, u"sigle.*"_s, false);
  if (stato.FileBatch.isEmpty()) return esito;
  Clessidra clessidra(dialoghi);
  try {
    Giro(stato, dialoghi, Voce(lotto)).Fa(alGuasto, esito);
  } catch (const ErroreEsecuzione& errore) {
    clessidra.Togli();
    dialoghi.Messaggio(Guasto(errore));
  }
  return esito;
}

int ContaDocumentiConsegna(StatoGlobale& stato, FileTesto& file) {
  LeggiInfoConsegna(stato);
  const auto n = static_cast<int>(
      stato.DbArchivio.OpenRecordset(u"SELECT count(IDDocumento) as quanti from tabDocumento"_s)
          .Fields("quanti")
          .Intero());
  const auto numero = [&stato](int contatore) -> QString {
    return stato.PrefissoDoc + RiempiZeri(QString::number(contatore), 4);
  };
  file.Print(u"Consegna %1: %2 documenti da %3 a %4"_s.arg(stato.SiglaConsegna)
                 .arg(n, 3)
                 .arg(numero(stato.ContatoreDoc), numero(stato.ContatoreDoc + n - 1)));
  return n;
}

}  // namespace torvi
