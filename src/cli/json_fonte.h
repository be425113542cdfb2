// Sources and the controls they are composed from, as JSON; and an operator who answers from a list
// and whose messages are kept.
#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "cli/dialoghi_console.h"
#include "fonti/controlli_fonte.h"
#include "shell/righe.h"

namespace torvi {

// Controls by name; an absent one is at its empty state, ComboFonte on the header of its tab. An
// unknown name, or a value of another kind: error 13.
[[nodiscard]] ControlliFonte ControlliInterna(const QJsonObject& controlli);
[[nodiscard]] ControlliFonte ControlliAltra(const QJsonObject& controlli);
[[nodiscard]] QJsonObject JsonFonte(const RigaFonte& riga);

// Messages and questions go to a list instead of the terminal. A question without an answer left:
// error 32755, cancelled; an answer that is none: error 13.
class DialoghiRegistrati : public DialoghiConsole {
 public:
  explicit DialoghiRegistrati(QJsonArray risposte);
  [[nodiscard]] const QJsonArray& Messaggi() const { return messaggi_; }

  void Messaggio(const QString& testo, const QString& titolo, Icona icona) override;
  [[nodiscard]] Risposta Domanda(const QString& testo, const QString& titolo,
                                 Pulsanti pulsanti) override;

 private:
  void Registra(const QString& testo, const QString& titolo, const char* pulsanti);

  QString scarto_;
  QTextStream muto_{&scarto_};
  QJsonArray risposte_;
  QJsonArray messaggi_;
};

}  // namespace torvi
