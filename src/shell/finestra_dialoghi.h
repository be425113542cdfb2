// The dialogs of the desktop program: boxes, forms, and the main window's pointer and status bar.
#pragma once

#include <QMainWindow>

#include "shell/accesso_riservato.h"
#include "shell/dialoghi.h"
#include "shell/finestra_attesa.h"
#include "shell/finestra_file_scritto.h"

namespace torvi {

class DialoghiFinestra : public Dialoghi {
 public:
  explicit DialoghiFinestra(QMainWindow& finestra);

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
  void FileScritto(const QString& percorso) override;
  void Attesa(bool attiva) override;

 private:
  void MostraAvanzamento(const QString& cosa, int fatto, int totale) override;
  // Boxes stand over the form that is open.
  [[nodiscard]] QWidget* Padre() const;

  QMainWindow& finestra_;
  AttesaFinestra attesa_;
  OffertaFile* offerta_;
  PasswordErrate passwordErrate_;
};

}  // namespace torvi
