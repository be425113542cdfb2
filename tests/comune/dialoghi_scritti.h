// Dialogs that answer from a script. Every question must be the next one of the script, to the
// character; a question out of place or an answer left over fails the test. What is only shown is
// recorded in order, questions included.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>

#include "shell/dialoghi.h"

namespace torvi {

// One thing the operator was shown or asked.
struct Parola {
  enum class Genere {
    Messaggio,
    Domanda,
    Immissione,
    File,
    Informazione,
    FileUscita,
    Errori,
    TestoEsteso,
    Lista,
    Login
  };
  Genere genere = Genere::Messaggio;
  QString testo = {};
  QString titolo = {};
  Pulsanti pulsanti = Pulsanti::Ok;
  Icona icona = Icona::Nessuna;
};

class DialoghiScritti : public Dialoghi {
 public:
  DialoghiScritti() = default;
  DialoghiScritti(const DialoghiScritti&) = delete;
  DialoghiScritti& operator=(const DialoghiScritti&) = delete;
  ~DialoghiScritti() override;

  // The script, in the order of the questions.
  void AttendeDomanda(const QString& testo, const QString& titolo, Pulsanti pulsanti,
                      Risposta risposta) {
    Attende({{Parola::Genere::Domanda, testo, titolo, pulsanti}, risposta});
  }
  void AttendeImmissione(const QString& testo, const QString& titolo, const QString& risposta) {
    Attende({{Parola::Genere::Immissione, testo, titolo}, Risposta::Ok, risposta});
  }
  void AttendeFile(const QString& titolo, const QString& percorso) {
    Attende({{Parola::Genere::File, {}, titolo}, Risposta::Ok, percorso});
  }
  void AttendeFileAnnullato(const QString& titolo) {
    Attende({{Parola::Genere::File, {}, titolo}, Risposta::Annulla});
  }
  void AttendeInformazione(const QString& risposta) {
    Attende({{Parola::Genere::Informazione}, Risposta::Ok, risposta});
  }
  // `prima` runs before the answer, as a form changes variables while it is shown.
  void AttendeFileUscita(const QString& risposta, const std::function<void()>& prima = {}) {
    Attende({{Parola::Genere::FileUscita}, Risposta::Ok, risposta, prima});
  }
  void AttendeTestoEsteso(const QString& etichetta, const QString& risposta) {
    Attende({{Parola::Genere::TestoEsteso, etichetta}, Risposta::Ok, risposta});
  }
  // `voci` must be the lines of the list; without them any list will do.
  void AttendeLista(const QStringList& voci, const QString& risposta) {
    Attende({{Parola::Genere::Lista}, Risposta::Ok, risposta, {}, voci});
  }
  void AttendeLista(const QString& risposta) {
    Attende({{Parola::Genere::Lista}, Risposta::Ok, risposta});
  }
  void AttendeLogin(bool riuscito) {
    Attende({{Parola::Genere::Login}, riuscito ? Risposta::Ok : Risposta::Annulla});
  }

  // What was shown or asked so far.
  [[nodiscard]] const QList<Parola>& Parole() const { return parole_; }
  // The texts of the messages alone.
  [[nodiscard]] QStringList Messaggi() const;
  // The text of the last message, empty if there was none.
  [[nodiscard]] QString UltimoMessaggio() const;
  // What the error window was last given.
  [[nodiscard]] const QString& Errori() const { return errori_; }
  [[nodiscard]] const RichiestaFile& UltimaRichiesta() const { return richiesta_; }
  // Folder, pattern and "nuovo" (or "") of the last chooser of an output file.
  [[nodiscard]] const QStringList& UltimaUscita() const { return uscita_; }
  // The lines of the last picker.
  [[nodiscard]] const QStringList& UltimaLista() const { return lista_; }
  [[nodiscard]] bool InAttesa() const { return attese_ > 0; }
  [[nodiscard]] int Avanzamenti() const { return avanzamenti_; }
  // The file that a print or an export finished last.
  [[nodiscard]] const QString& UltimoFile() const { return ultimoFile_; }
  // What was said of them, each once in a row.
  [[nodiscard]] const QStringList& Avanzati() const { return avanzati_; }

  void Messaggio(const QString& testo, const QString& titolo, Icona icona) override;
  [[nodiscard]] Risposta Domanda(const QString& testo, const QString& titolo,
                                 Pulsanti pulsanti) override;
  [[nodiscard]] QString Immissione(const QString& testo, const QString& titolo) override;
  [[nodiscard]] QString ScegliFile(const RichiestaFile& richiesta) override;
  [[nodiscard]] QString ChiediInformazione() override;
  [[nodiscard]] QString ScegliFileUscita(const QString& cartella, const QString& modello,
                                         bool conNuovo) override;
  void MostraErrori(const QString& testo) override;
  [[nodiscard]] QString ChiediTestoEsteso(const QString& etichetta) override;
  [[nodiscard]] QString ScegliDaLista(const QStringList& voci) override;
  [[nodiscard]] bool ChiediLogin(const QString& passwordRiservata) override;
  void FileScritto(const QString& percorso) override { ultimoFile_ = percorso; }
  void Attesa(bool attiva) override;

 private:
  void MostraAvanzamento(const QString& cosa, int fatto, int totale) override;
  struct Battuta {
    Parola parola;
    Risposta risposta = Risposta::Ok;
    QString testo = {};
    std::function<void()> prima = {};
    std::optional<QStringList> voci = {};
  };
  void Attende(const Battuta& battuta) { copione_.push_back(battuta); }
  Battuta Prossima(const Parola& parola);

  std::deque<Battuta> copione_;
  QList<Parola> parole_;
  RichiestaFile richiesta_;
  QStringList uscita_;
  QStringList lista_;
  QString errori_;
  QString ultimoFile_;
  int attese_ = 0;
  int avanzamenti_ = 0;
  QStringList avanzati_;
};

}  // namespace torvi
