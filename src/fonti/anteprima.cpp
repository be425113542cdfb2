#include "fonti/anteprima.h"

#include "archive/errore.h"

namespace torvi {
namespace {

// Keeps the first thing said, and goes on as if the operator agreed.
class DialoghiMuti : public Dialoghi {
 public:
  [[nodiscard]] const QString& PrimaParola() const { return primaParola_; }

  void Messaggio(const QString& testo, const QString& /*titolo*/, Icona /*icona*/) override {
    Ricorda(testo);
  }
  [[nodiscard]] Risposta Domanda(const QString& testo, const QString& /*titolo*/,
                                 Pulsanti /*pulsanti*/) override {
    Ricorda(testo);
    return Risposta::Si;
  }
  [[nodiscard]] QString Immissione(const QString& testo, const QString& /*titolo*/) override {
    Ricorda(testo);
    return {};
  }
  [[nodiscard]] QString ScegliFile(const RichiestaFile& /*richiesta*/) override { return {}; }
  [[nodiscard]] QString ChiediInformazione() override { return {}; }
  [[nodiscard]] QString ScegliFileUscita(const QString& /*cartella*/, const QString& /*modello*/,
                                         bool /*conNuovo*/) override {
    return {};
  }
  void MostraErrori(const QString& /*testo*/) override {}
  [[nodiscard]] QString ChiediTestoEsteso(const QString& /*etichetta*/) override { return {}; }
  [[nodiscard]] QString ScegliDaLista(const QStringList& /*voci*/) override { return {}; }
  [[nodiscard]] bool ChiediLogin(const QString& /*passwordRiservata*/) override { return false; }
  void Attesa(bool /*attiva*/) override {}

 private:
  void MostraAvanzamento(const QString& /*cosa*/, int /*fatto*/, int /*totale*/) override {}
  void Ricorda(const QString& testo) {
    if (primaParola_.isEmpty()) primaParola_ = testo;
  }
  QString primaParola_;
};

}  // namespace

Anteprima ComponiAnteprima(const StatoGlobale& stato, SalvaFonte salva,
                           const ControlliFonte& controlli) {
  StatoGlobale copia;
  copia.DbArchivio = stato.DbArchivio;
  copia.NuovaFonte = true;
  DialoghiMuti dialoghi;
  Anteprima anteprima;
  try {
    const EsitoFonte esito = salva(copia, dialoghi, controlli);
    if (esito == EsitoFonte::Composta) anteprima.testo = copia.RigheFonte.back().Testo;
  } catch (const ErroreEsecuzione&) {
    return {};
  }
  anteprima.mancanza = dialoghi.PrimaParola();
  return anteprima;
}

}  // namespace torvi
