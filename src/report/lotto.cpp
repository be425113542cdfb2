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
#include "export/registro_uscite.h"
#include "report/consegna_in_anticipo.h"
#include "report/estrazioni.h"
#include "report/sigle.h"
#include "report/stampa_html.h"
#include "shell/apertura.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr std::array kVoci = {
    VoceLotto{"isis", Lotto::Isis, "lexxdump isis."_L1, {}, &kEsportaIsis, nullptr},
    VoceLotto{"cassazione",
              Lotto::Cassazione,
              "lexxdump cassazione."_L1,
              {},
              &kEsportaCassazione,
              nullptr},
    VoceLotto{"storico", Lotto::Storico, "lexxdump storico."_L1, {}, &kEsportaStorico, nullptr},
    VoceLotto{"celex", Lotto::Celex, "StampaHTML "_L1, ".htm"_L1, nullptr, StampaHTMLCelex},
    VoceLotto{"hudoc", Lotto::Hudoc, "StampaHTML_GEI "_L1, ".htm"_L1, nullptr, StampaHTMLHudoc},
    VoceLotto{"note", Lotto::Note, "note."_L1, {}, nullptr, EstraiNote},
    VoceLotto{"nuovi", Lotto::Nuovi, "nuovi."_L1, {}, nullptr, EstraiNuovi},
    VoceLotto{"conteggio", Lotto::Conteggio, "conteggio."_L1, {}, nullptr, nullptr},
};

QString Guasto(const ErroreEsecuzione& errore) {
  return QString::number(errore.Numero()) + " --> "_L1 + errore.Descrizione();
}

QString NomeUscita(const VoceLotto& voce, const QString& fileSigle) {
  constexpr qsizetype kEstensione = 3;  // of the whole path, whatever the name looks like
  return voce.uscita + fileSigle.right(kEstensione) + voce.coda;
}

const VoceLotto& Voce(Lotto lotto) { return *std::ranges::find(kVoci, lotto, &VoceLotto::lotto); }

// A code as the operator is told of it.
QString Nominata(const QString& sigla) {
  return sigla.trimmed().isEmpty() ? u"(riga vuota)"_s : sigla;
}

// Files that a delivery adds to, to be cut back where it fails.
class PuntoDiRitorno {
 public:
  explicit PuntoDiRitorno(const QStringList& file) {
    for (const QString& uno : file) misure_.append({uno, QFileInfo(uno).size()});
  }
  void Torna() const {
    for (const auto& [file, misura] : misure_) {
      if (QFileInfo(file).size() > misura) QFile::resize(file, misura);
    }
  }

 private:
  QList<std::pair<QString, qint64>> misure_;
};

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
    RipristinaUscite(CartellaUscite(stato_.CartellaApplicazione));
    const bool esporta = voce_.esportazione != nullptr;
    if (!esporta && voce_.operazione == nullptr) conteggio_.emplace(stato_.FileBatch);
    const auto finito = qScopeGuard([this] { dialoghi_.Ambito({}); });
    for (const QString& sigla : sigle) {
      const qsizetype posto = esito.fatte + esito.fallite.size() + 1;
      dialoghi_.Ambito(u"%1 (%2 di %3): "_s.arg(Nominata(sigla), QString::number(posto),
                                                QString::number(sigle.size())));
      FaConsegna(sigla, sigle.value(posto), alGuasto, esito);
    }
    if (conteggio_) ChiudiConteggio(esito.fatte);
    esito.riuscito = esito.fallite.isEmpty();
  }

 private:
  // `seguente` is the code behind it; empty: none.
  void FaConsegna(const QString& sigla, const QString& seguente, AlGuasto alGuasto,
                  EsitoLotto& esito) {
    const PuntoDiRitorno inizio(FileAccodati());
    try {
      const auto pronta = anticipo_.Prendi(Percorso(sigla));
      stato_.DbArchivio = pronta ? pronta->archivio : ApriArchivio(Percorso(sigla), dialoghi_);
      if (voce_.esportazione != nullptr && !seguente.isEmpty()) {
        anticipo_.Prepara(Percorso(seguente));
      }
      Opera(pronta.get());
      stato_.DbArchivio.Close();
      ++esito.fatte;
    } catch (const ErroreEsecuzione& errore) {
      esito.fallite += Nominata(sigla);
      if (alGuasto == AlGuasto::Ferma) throw;
      inizio.Torna();
      dialoghi_.Messaggio(u"Consegna %1: %2"_s.arg(esito.fallite.constLast(), Guasto(errore)));
    }
  }

  [[nodiscard]] QString Percorso(const QString& sigla) const {
    return FileArchivio(stato_.CartellaApplicazione, sigla + ".mdb"_L1);
  }

  // Not the file of a count, which is open and gets whole lines only.
  [[nodiscard]] QStringList FileAccodati() const {
    if (conteggio_) return {};
    return FileErroriAccodati(stato_) + QStringList{stato_.FileBatch};
  }

  void Opera(ConsegnaPronta* pronta) {
    if (voce_.esportazione != nullptr) {
      Esporta(pronta);
    } else if (voce_.operazione != nullptr) {
      voce_.operazione(stato_, dialoghi_);
    } else {
      dialoghi_.Avanzamento(u"Conteggio documenti"_s, 0, 0);
      conteggio_->documenti += ContaDocumentiConsegna(stato_, conteggio_->file);
    }
  }

  void Esporta(ConsegnaPronta* pronta) {
    std::optional<ConsegnaPronta> sua;
    ConsegnaPronta& consegna = pronta ? *pronta : sua.emplace(stato_.DbArchivio);
    EsportaAscii(stato_, dialoghi_, *voce_.esportazione, catalogo_, consegna.condivise,
                 consegna.fonti);
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
  ConsegnaInAnticipo anticipo_;
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
  const int n = stato.DbArchivio.Conta(u"from tabDocumento"_s);
  file.Print("Consegna "_L1 + stato.SiglaConsegna + ": "_L1 + QString::number(n).rightJustified(3) +
             " documenti da "_L1 + NumeroIntero(stato, stato.ContatoreDoc) + " a "_L1 +
             NumeroIntero(stato, stato.ContatoreDoc + n - 1));
  return n;
}

}  // namespace torvi
