// The one way to the operator for routines without widgets. The desktop program shows boxes and
// forms; torvi writes to standard error and answers from its options; tests answer from a script
// and record every word.
#pragma once

#include <QString>
#include <QStringList>

namespace torvi {

enum class Pulsanti { Ok, OkAnnulla, SiNo, SiNoAnnulla };
enum class Risposta { Ok, Annulla, Si, No };
enum class Icona { Nessuna, Informazione };

struct RichiestaFile {
  QString titolo;
  QString filtro;               // "Database file (*.mdb)|*.mdb"
  QString estensione;           // appended to a name without one
  QString cartella;             // where the dialog starts
  bool deveEsistere = false;    // only files that are there can be chosen
  bool chiedeSeCreare = false;  // asks before a name that is not there is accepted
};

class Dialoghi {
 public:
  Dialoghi() = default;
  Dialoghi(const Dialoghi&) = delete;
  Dialoghi& operator=(const Dialoghi&) = delete;
  virtual ~Dialoghi() = default;

  // An empty title stands for the application's own, "TorviEditor".
  virtual void Messaggio(const QString& testo, const QString& titolo = {},
                         Icona icona = Icona::Nessuna) = 0;
  [[nodiscard]] virtual Risposta Domanda(const QString& testo, const QString& titolo,
                                         Pulsanti pulsanti) = 0;
  // The text typed; empty when the operator cancels.
  [[nodiscard]] virtual QString Immissione(const QString& testo, const QString& titolo) = 0;
  // The chosen path. Cancelled: error 32755.
  [[nodiscard]] virtual QString ScegliFile(const RichiestaFile& richiesta) = 0;

  // Subordinate forms that a plain routine opens. What they give back is what the form leaves in
  // its variable of StatoGlobale: the fields of a new delivery joined by '|', an output file, a
  // long form, a line.
  [[nodiscard]] virtual QString ChiediInformazione() = 0;
  [[nodiscard]] virtual QString ScegliFileUscita(const QString& cartella, const QString& modello,
                                                 bool conNuovo) = 0;
  virtual void MostraErrori(const QString& testo) = 0;
  // The long form of what `etichetta` names ("Ministero: " and the short form). Empty is an answer.
  [[nodiscard]] virtual QString ChiediTestoEsteso(const QString& etichetta) = 0;
  // The line chosen; empty when the operator cancels.
  [[nodiscard]] virtual QString ScegliDaLista(const QStringList& voci) = 0;

  // The login of the restricted commands. True once the right password was given.
  [[nodiscard]] virtual bool ChiediLogin(const QString& passwordRiservata) = 0;

  // A print or an export has finished this file: the operator may want to open it.
  virtual void FileScritto(const QString& /*percorso*/) {}

  // Hourglass or arrow.
  virtual void Attesa(bool attiva) = 0;
  // How far a long run has come; `totale` 0 where it is not known. Ends with Attesa(false).
  void Avanzamento(const QString& cosa, int fatto, int totale) {
    MostraAvanzamento(ambito_ + cosa, fatto, totale);
  }
  // What the runs that follow are part of, in front of what they say; emptied when the whole is
  // over.
  void Ambito(const QString& ambito) { ambito_ = ambito; }

 private:
  virtual void MostraAvanzamento(const QString& cosa, int fatto, int totale) = 0;
  QString ambito_;
};

// The hourglass for as long as a routine runs, however it ends.
class Clessidra {
 public:
  explicit Clessidra(Dialoghi& dialoghi) : dialoghi_(dialoghi) { dialoghi_.Attesa(true); }
  Clessidra(const Clessidra&) = delete;
  Clessidra& operator=(const Clessidra&) = delete;
  ~Clessidra() { Togli(); }
  void Togli() {
    if (attiva_) dialoghi_.Attesa(false);
    attiva_ = false;
  }

 private:
  Dialoghi& dialoghi_;
  bool attiva_ = true;
};

}  // namespace torvi
