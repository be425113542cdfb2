#include "cli/dialoghi_console.h"

#include <unistd.h>

#include <cstdio>

namespace torvi {

namespace {

void Scrivi(const QString& testo) {
  const QByteArray byte = testo.toUtf8();
  std::fwrite(byte.constData(), 1, static_cast<std::size_t>(byte.size()), stderr);
}

bool Terminale() { return ::isatty(STDERR_FILENO) == 1; }

}  // namespace

void DialoghiConsole::Messaggio(const QString& testo, const QString& /*titolo*/, Icona /*icona*/) {
  TogliAvanzamento();
  ultimoMessaggio_ = testo;
  Scrivi(testo.simplified() + QLatin1Char('\n'));
}

Risposta DialoghiConsole::Domanda(const QString& testo, const QString& /*titolo*/,
                                  Pulsanti /*pulsanti*/) {
  const auto risposta = risposte_.constFind(testo);
  if (risposta == risposte_.constEnd()) throw Rifiuto{testo};
  return *risposta;
}

QString DialoghiConsole::Immissione(const QString& testo, const QString& /*titolo*/) {
  throw Rifiuto{testo};
}

QString DialoghiConsole::ScegliFile(const RichiestaFile& richiesta) {
  throw Rifiuto{richiesta.titolo};
}

QString DialoghiConsole::ChiediInformazione() {
  throw Rifiuto{QStringLiteral("Informazione consegna")};
}

QString DialoghiConsole::ScegliFileUscita(const QString& /*cartella*/, const QString& modello,
                                          bool /*conNuovo*/) {
  if (fileUscita_.isEmpty()) throw Rifiuto{modello};
  return fileUscita_;
}

void DialoghiConsole::MostraErrori(const QString& testo) {
  erroriMostrati_ = true;
  uscita_ << testo;
}

QString DialoghiConsole::ChiediTestoEsteso(const QString& etichetta) { throw Rifiuto{etichetta}; }

QString DialoghiConsole::ScegliDaLista(const QStringList& /*voci*/) {
  throw Rifiuto{QStringLiteral("Lista")};
}

bool DialoghiConsole::ChiediLogin(const QString& /*passwordRiservata*/) {
  throw Rifiuto{QStringLiteral("Login")};
}

void DialoghiConsole::FileScritto(const QString& percorso) {
  if (!fileScritti_.contains(percorso)) fileScritti_ += percorso;
}

void DialoghiConsole::Attesa(bool attiva) {
  if (!attiva) TogliAvanzamento();
}

void DialoghiConsole::MostraAvanzamento(const QString& cosa, int fatto, int totale) {
  if (!Terminale()) return;
  QString riga = QStringLiteral("%1: %2").arg(cosa).arg(fatto);
  if (totale > 0) riga += QStringLiteral(" di %1").arg(totale);
  Scrivi(QLatin1Char('\r') + riga.leftJustified(larghezzaAvanzamento_));
  larghezzaAvanzamento_ = static_cast<int>(riga.size());
}

void DialoghiConsole::TogliAvanzamento() {
  if (larghezzaAvanzamento_ == 0) return;
  Scrivi(QLatin1Char('\r') + QString(larghezzaAvanzamento_, QLatin1Char(' ')) + QLatin1Char('\r'));
  larghezzaAvanzamento_ = 0;
}

}  // namespace torvi
