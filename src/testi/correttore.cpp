#include "testi/correttore.h"

namespace torvi {

QString MessaggioFine(Controllo controllo) {
  return controllo == Controllo::Ortografico ? QStringLiteral("Controllo ortografico effettuato!")
                                             : QStringLiteral("Controllo grammaticale effettuato!");
}

QString TestoControllato(Correttore& correttore, Controllo controllo, const QString& testo,
                         const QString& testoIniziale, Dialoghi& dialoghi) {
  correttore.Carica(testo);
  correttore.Controlla(controllo);
  QString corretto = correttore.Testo();
  if (!corretto.isEmpty()) return corretto;
  const Risposta risposta = dialoghi.Domanda(
      QStringLiteral("Testo con correzioni perso: vuoi ripristinare il testo originale?"),
      QStringLiteral("Attenzione!"), Pulsanti::SiNo);
  return risposta == Risposta::Si ? testoIniziale : QString();
}

CorrettoreProprio::CorrettoreProprio(Lingua lingua, Dizionari& dizionari, Operatore operatore)
    : lingua_(lingua), dizionari_(dizionari), operatore_(std::move(operatore)) {}

Ortografia& CorrettoreProprio::ApriOrtografia() {
  if (!ortografia_) {
    const Dizionario& dizionario = dizionari_.Di(lingua_);
    ortografia_.emplace(lingua_, dizionario,
                        DizionarioPersonale(dizionari_.CartellaApplicazione(), lingua_));
  }
  return *ortografia_;
}

void CorrettoreProprio::Controlla(Controllo controllo) {
  // Rules ignored in one check hold again in the next.
  Grammatica grammatica(lingua_);
  Esame& esame = controllo == Controllo::Ortografico ? static_cast<Esame&>(ApriOrtografia())
                                                     : static_cast<Esame&>(grammatica);
  Revisione revisione(testo_, esame);
  if (revisione.Corrente()) operatore_(revisione, controllo);
  testo_ = revisione.Testo();
}

}  // namespace torvi
