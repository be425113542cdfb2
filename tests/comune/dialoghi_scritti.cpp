#include "comune/dialoghi_scritti.h"

#include <gtest/gtest.h>

#include "archive/errore.h"

namespace torvi {
namespace {

using Genere = Parola::Genere;

std::string Mostra(const Parola& parola) {
  return QStringLiteral("genere %1, pulsanti %2, \"%3\", titolo \"%4\"")
      .arg(QString::number(static_cast<int>(parola.genere)),
           QString::number(static_cast<int>(parola.pulsanti)), parola.testo, parola.titolo)
      .toStdString();
}

bool StesseParole(const Parola& a, const Parola& b) {
  return a.genere == b.genere && a.testo == b.testo && a.titolo == b.titolo &&
         a.pulsanti == b.pulsanti;
}

}  // namespace

DialoghiScritti::~DialoghiScritti() {
  for (const Battuta& battuta : copione_) {
    ADD_FAILURE() << "never asked: " << Mostra(battuta.parola);
  }
  EXPECT_EQ(attese_, 0) << "the hourglass was left on";
}

QStringList DialoghiScritti::Messaggi() const {
  QStringList testi;
  for (const Parola& parola : parole_) {
    if (parola.genere == Genere::Messaggio) testi += parola.testo;
  }
  return testi;
}

QString DialoghiScritti::UltimoMessaggio() const {
  const QStringList testi = Messaggi();
  return testi.isEmpty() ? QString() : testi.last();
}

DialoghiScritti::Battuta DialoghiScritti::Prossima(const Parola& parola) {
  parole_ += parola;
  if (copione_.empty() || !StesseParole(copione_.front().parola, parola)) {
    ADD_FAILURE() << "asked: " << Mostra(parola) << "\nexpected: "
                  << (copione_.empty() ? "nothing" : Mostra(copione_.front().parola));
    return {parola, parola.pulsanti == Pulsanti::SiNo ? Risposta::No : Risposta::Annulla};
  }
  Battuta battuta = std::move(copione_.front());
  copione_.pop_front();
  if (battuta.prima) battuta.prima();
  return battuta;
}

void DialoghiScritti::Messaggio(const QString& testo, const QString& titolo, Icona icona) {
  parole_ += {Genere::Messaggio, testo, titolo, Pulsanti::Ok, icona};
}

Risposta DialoghiScritti::Domanda(const QString& testo, const QString& titolo, Pulsanti pulsanti) {
  return Prossima({Genere::Domanda, testo, titolo, pulsanti}).risposta;
}

QString DialoghiScritti::Immissione(const QString& testo, const QString& titolo) {
  return Prossima({Genere::Immissione, testo, titolo}).testo;
}

QString DialoghiScritti::ScegliFile(const RichiestaFile& richiesta) {
  richiesta_ = richiesta;
  const Battuta battuta = Prossima({Genere::File, {}, richiesta.titolo});
  if (battuta.risposta == Risposta::Annulla) throw ErroreEsecuzione(Errore::OperazioneAnnullata);
  return battuta.testo;
}

QString DialoghiScritti::ChiediInformazione() { return Prossima({Genere::Informazione}).testo; }

QString DialoghiScritti::ScegliFileUscita(const QString& cartella, const QString& modello,
                                          bool conNuovo) {
  uscita_ = {cartella, modello, conNuovo ? "nuovo" : QString()};
  return Prossima({Genere::FileUscita}).testo;
}

void DialoghiScritti::MostraErrori(const QString& testo) {
  parole_ += {Genere::Errori, testo};
  errori_ = testo;
}

QString DialoghiScritti::ChiediTestoEsteso(const QString& etichetta) {
  return Prossima({Genere::TestoEsteso, etichetta}).testo;
}

QString DialoghiScritti::ScegliDaLista(const QStringList& voci) {
  lista_ = voci;
  const Battuta battuta = Prossima({Genere::Lista});
  EXPECT_EQ(voci, battuta.voci.value_or(voci));
  return battuta.testo;
}

bool DialoghiScritti::ChiediLogin(const QString& /*passwordRiservata*/) {
  return Prossima({Genere::Login}).risposta == Risposta::Ok;
}

void DialoghiScritti::Attesa(bool attiva) { attese_ += attiva ? 1 : -1; }

void DialoghiScritti::MostraAvanzamento(const QString& cosa, int /*fatto*/, int /*totale*/) {
  ++avanzamenti_;
  if (avanzati_.isEmpty() || avanzati_.last() != cosa) avanzati_ += cosa;
}

}  // namespace torvi
