// The operator of torvi: messages go to standard error, one line each; questions are answered by
// the options of the command line, known before the command starts.
#pragma once

#include <QHash>
#include <QTextStream>

#include "shell/dialoghi.h"

namespace torvi {

// A question for which no option has the answer: the command is refused.
struct Rifiuto {
  QString domanda;
};

class DialoghiConsole : public Dialoghi {
 public:
  explicit DialoghiConsole(QTextStream& uscita) : uscita_(uscita) {}

  // What a question will be answered, by its text; and the file that ScegliFileUscita gives back.
  void Rispondi(const QString& domanda, Risposta risposta) { risposte_.insert(domanda, risposta); }
  void FileUscitaScelto(const QString& percorso) { fileUscita_ = percorso; }

  // What was said last, and whether error files were shown.
  [[nodiscard]] const QString& UltimoMessaggio() const { return ultimoMessaggio_; }
  [[nodiscard]] bool ErroriMostrati() const { return erroriMostrati_; }
  // Each file that was finished, once.
  [[nodiscard]] const QStringList& FileScritti() const { return fileScritti_; }

  void Messaggio(const QString& testo, const QString& titolo = {},
                 Icona icona = Icona::Nessuna) override;
  [[nodiscard]] Risposta Domanda(const QString& testo, const QString& titolo,
                                 Pulsanti pulsanti) override;
  [[nodiscard]] QString Immissione(const QString& testo, const QString& titolo) override;
  [[nodiscard]] QString ScegliFile(const RichiestaFile& richiesta) override;
  [[nodiscard]] QString ChiediInformazione() override;
  [[nodiscard]] QString ScegliFileUscita(const QString& cartella, const QString& modello,
                                         bool conNuovo) override;
  // To standard output.
  void MostraErrori(const QString& testo) override;
  [[nodiscard]] QString ChiediTestoEsteso(const QString& etichetta) override;
  [[nodiscard]] QString ScegliDaLista(const QStringList& voci) override;
  [[nodiscard]] bool ChiediLogin(const QString& passwordRiservata) override;
  void FileScritto(const QString& percorso) override;
  void Attesa(bool attiva) override;

 private:
  // One line that writes over itself, only where standard error is a terminal.
  void MostraAvanzamento(const QString& cosa, int fatto, int totale) override;
  void TogliAvanzamento();
  QTextStream& uscita_;
  QHash<QString, Risposta> risposte_;
  QString fileUscita_;
  QString ultimoMessaggio_;
  bool erroriMostrati_ = false;
  QStringList fileScritti_;
  int larghezzaAvanzamento_ = 0;
};

}  // namespace torvi
