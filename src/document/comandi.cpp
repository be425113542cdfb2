#include "document/comandi.h"

#include <utility>

#include "document/carica.h"
#include "document/salva.h"
#include "document/testi_documento.h"

namespace torvi {
namespace {

const QString kAttenzione = QStringLiteral("Attenzione!");

qint64 UltimoNumero(Documento& documento) {
  documento.Documenti().MoveLast();
  return documento.Documenti().Fields("IDDocumento").Intero();
}

// The number that the program puts into txtID, given back where no document gets it.
class NumeroProvvisorio {
 public:
  NumeroProvvisorio(Documento& documento, qint64 numero)
      : documento_(documento),
        txtID_(std::exchange(documento.campi.txtID, QString::number(numero))),
        mostrato_(std::exchange(documento.numeroMostrato, numero)) {}
  NumeroProvvisorio(const NumeroProvvisorio&) = delete;
  NumeroProvvisorio& operator=(const NumeroProvvisorio&) = delete;
  ~NumeroProvvisorio() {
    if (tenuto_) return;
    documento_.campi.txtID = txtID_;
    documento_.numeroMostrato = mostrato_;
  }
  void Tieni() { tenuto_ = true; }

 private:
  Documento& documento_;
  QString txtID_;
  qint64 mostrato_;
  bool tenuto_ = false;
};

// Saves under the number that a new document is expected to get. A refusal, and a failure before
// there is a new row, leave the number as it was: the next save is not to look for a document that
// never came to be.
bool SalvaComeUltimo(Documento& documento) {
  if (!documento.guasto.isEmpty()) return SalvaDocumento(documento);
  documento.SalvaComeNuovo = true;
  const qint64 ultimo = UltimoNumero(documento);
  NumeroProvvisorio numero(documento, ultimo + 1);
  try {
    const bool salvato = SalvaDocumento(documento);
    if (salvato) numero.Tieni();
    return salvato;
  } catch (const ErroreEsecuzione&) {
    if (UltimoNumero(documento) != ultimo) numero.Tieni();
    throw;
  }
}

void AzzeraRighe(StatoGlobale& stato) {
  stato.RigheResponsabilita.clear();
  stato.RigheClasse.clear();
  stato.RigheFonte.clear();
}

// Before the form is emptied for a new document.
void OffreSalvataggio(Documento& documento) {
  const Risposta risposta =
      documento.dialoghi.Domanda(QStringLiteral("Vuoi salvare con lo stesso numero di documento?"),
                                 QStringLiteral("Salvataggio"), Pulsanti::SiNoAnnulla);
  if (risposta == Risposta::Annulla) return;
  if (risposta == Risposta::No) {
    SalvaComeUltimo(documento);
  } else {
    SalvaDocumento(documento);
  }
}

template <typename Riga>
void Segna(QStringList& lista, std::vector<Riga>& righe, const std::vector<int>& scelte) {
  for (const int posto : scelte) {
    if (posto >= lista.size() || static_cast<std::size_t>(posto) >= righe.size()) continue;
    lista[posto].prepend(QStringLiteral("DEL--"));
    righe[static_cast<std::size_t>(posto)].Cancellata = true;
  }
}

}  // namespace

bool ComandoSalva(Documento& documento) {
  documento.SalvaComeNuovo = documento.stato.DocumentoNuovo;
  const bool salvato = SalvaDocumento(documento);
  documento.fuoco = QStringLiteral("txtID");
  return salvato;
}

bool ComandoEsci(Documento& documento) {
  documento.SalvaComeNuovo = documento.stato.DocumentoNuovo;
  const bool salvato = SalvaDocumento(documento);
  documento.stato.ListaRicerca.clear();
  return salvato;
}

void ComandoAbbandona(Documento& documento) { documento.stato.ListaRicerca.clear(); }

void ComandoNew(Documento& documento) {
  if (documento.stato.DocumentoNuovo) {
    documento.SalvaComeNuovo = true;
  } else if (documento.guasto.isEmpty()) {
    OffreSalvataggio(documento);
  }
  // Where there is no document this fails, before anything of the shown one is gone.
  documento.Documenti().MoveLast();
  documento.stato.DocumentoNuovo = true;
  CaricaCodici(documento);
  AzzeraRighe(documento.stato);
  documento.campi.txtID.clear();
  SvuotaDocumento(documento);
}

bool ComandoDuplica(Documento& documento) {
  const bool salvato = SalvaComeUltimo(documento);
  documento.fuoco = QStringLiteral("txtID");
  return salvato;
}

void ComandoElimina(Documento& documento, Lista lista, const std::vector<int>& scelte) {
  if (scelte.empty()) {
    documento.dialoghi.Messaggio(QStringLiteral("Nessuna selezione effettuata"), kAttenzione);
    return;
  }
  if (documento.dialoghi.Domanda(QStringLiteral("Confermi cancellazione?"), kAttenzione,
                                 Pulsanti::SiNo) != Risposta::Si) {
    return;
  }
  StatoGlobale& stato = documento.stato;
  CampiDocumento& campi = documento.campi;
  switch (lista) {
    case Lista::Responsabilita:
      Segna(campi.lstResponsabilita, stato.RigheResponsabilita, scelte);
      break;
    case Lista::Classi:
      Segna(campi.lstClassificazione, stato.RigheClasse, scelte);
      break;
    case Lista::Fonti:
      Segna(campi.lstFonte, stato.RigheFonte, scelte);
      break;
  }
}

void ComandoFonteInNota(Documento& documento) {
  const auto& righe = documento.stato.RigheFonte;
  const auto posto = static_cast<std::size_t>(documento.IndiceFonte);
  if (documento.IndiceFonte < 0 || posto >= righe.size()) return;
  const QString& testo = righe[posto].Testo;
  QString& nota = documento.campi.txtNota;
  const QString tipo = documento.campi.ComboTD.left(2);
  if (!nota.isEmpty()) {
    nota += QStringLiteral("; ") + testo;
  } else if (tipo == QStringLiteral("03")) {
    nota = QStringLiteral("Nota a ") + testo;
  } else if (tipo == QStringLiteral("07")) {
    nota = QStringLiteral("Commento a ") + testo;
  }
}

void ComandoCancellaNotaCompilatore(Documento& documento) {
  documento.stato.TestoNotaDoc.clear();
  documento.stato.NotaDocCancellata = true;
  documento.campi.icone[5] = false;
}

bool AnnoPerClassificare(Documento& documento) {
  if (!documento.campi.txtAA.isEmpty()) return true;
  documento.dialoghi.Messaggio(
      QStringLiteral("Per questa operazione è necessario riempire il campo \"Anno\"!"));
  documento.fuoco = QStringLiteral("txtAA");
  return false;
}

}  // namespace torvi
