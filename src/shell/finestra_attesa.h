// A long run seen from the main window: hourglass, progress in the status bar, and no way to start
// something else meanwhile. The window goes on painting; keys and clicks are thrown away unless a
// modal form is open, which the run itself has shown.
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QObject>
#include <QProgressBar>

namespace torvi {

class AttesaFinestra : public QObject {
 public:
  explicit AttesaFinestra(QMainWindow& finestra);
  ~AttesaFinestra() override;

  // May be nested.
  void Imposta(bool attiva);
  void Avanza(const QString& cosa, int fatto, int totale);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Comincia();
  void Finisci();

  QMainWindow& finestra_;
  QProgressBar* barra_;
  QElapsedTimer ultimoRidisegno_;
  int attese_ = 0;
};

}  // namespace torvi
