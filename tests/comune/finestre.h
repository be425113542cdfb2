// Modal forms driven as an operator would: by keys and clicks on named controls.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>

namespace torvi {

using Passo = std::function<void(QWidget& modale)>;

// The words of a box as "title|text|button|button", mnemonics left out; of another form, its title.
inline QString Parole(const QWidget& modale) {
  const auto* riquadro = qobject_cast<const QMessageBox*>(&modale);
  if (riquadro == nullptr) return modale.windowTitle();
  QStringList parole = {riquadro->windowTitle(), riquadro->text()};
  for (const auto codice :
       {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
    if (auto* pulsante = riquadro->button(codice)) {
      parole += pulsante->text().remove('&');
    }
  }
  return parole.join('|');
}

// Runs `azione`; each modal form that it opens, one inside the other too, is met by the next step.
// A form without a step, or a step without its form, fails the test.
class Operatore {
 public:
  static void Esegue(const std::function<void()>& azione, std::deque<Passo> passi) {
    const auto copione = std::make_shared<Copione>();
    copione->passi = std::move(passi);
    Sorveglia(copione);
    const auto fine = qScopeGuard([copione] { copione->finito = true; });
    azione();
    EXPECT_EQ(copione->passi.size(), 0U) << "forms that never came";
  }

 private:
  struct Copione {
    std::deque<Passo> passi;
    QPointer<QWidget> incontrata;  // a box may take a moment to go after its key
    QDeadlineTimer scadenza{20000};
    bool finito = false;
  };

  static void Sorveglia(const std::shared_ptr<Copione>& copione) {
    QTimer::singleShot(0, qApp, [copione] {
      if (copione->finito) return;
      Sorveglia(copione);
      QWidget* modale = QApplication::activeModalWidget();
      if (modale == nullptr || !modale->isVisible()) return;
      // Without a window manager nobody gives the form below a closed one its focus back.
      const bool scaduto = copione->scadenza.hasExpired();
      if (!modale->isActiveWindow() && !scaduto) {
        modale->activateWindow();
        return;
      }
      if (copione->incontrata == modale && !scaduto) return;
      if (copione->passi.empty() || scaduto) {
        ADD_FAILURE() << "unexpected form: " << Parole(*modale).toStdString();
        modale->close();
        return;
      }
      copione->incontrata = modale;
      const Passo passo = copione->passi.front();
      copione->passi.pop_front();
      passo(*modale);
    });
  }
};

// A control by its name; its absence fails the test.
template <typename Controllo>
[[nodiscard]] Controllo& Trova(const QWidget& forma, const char* nome) {
  auto* controllo = forma.findChild<Controllo*>(nome);
  if (controllo == nullptr) {
    ADD_FAILURE() << "no control " << nome;
    throw std::logic_error(nome);
  }
  return *controllo;
}

// The lines of a list.
[[nodiscard]] inline QStringList Linee(const QListWidget& lista) {
  QStringList linee;
  for (int i = 0; i < lista.count(); ++i) linee += lista.item(i)->text();
  return linee;
}

// What stands on a form, between bars: its title, its labels, its buttons.
[[nodiscard]] inline std::string Scritte(const QWidget& forma) {
  QStringList scritte = {forma.windowTitle()};
  for (const auto* etichetta : forma.findChildren<QLabel*>()) scritte += etichetta->text();
  for (const auto* pulsante : forma.findChildren<QPushButton*>()) scritte += pulsante->text();
  return scritte.join(QLatin1Char('|')).toStdString();
}

inline void Clic(const QWidget& forma, const char* pulsante) {
  QTest::mouseClick(&Trova<QPushButton>(forma, pulsante), Qt::LeftButton);
}

// A step that names a file in the chooser and takes it.
inline Passo ScriveFile(const QString& nome) {
  return [nome](QWidget& modale) {
    auto& campo = Trova<QLineEdit>(modale, "fileNameEdit");
    campo.selectAll();
    QTest::keyClicks(&campo, nome);
    QTest::keyClick(&campo, Qt::Key_Return);
  };
}

// A step that checks the words of a box and answers with a key.
inline Passo Riquadro(const QString& parole, Qt::Key tasto = Qt::Key_Return) {
  return [parole, tasto](QWidget& modale) {
    EXPECT_EQ(Parole(modale).toStdString(), parole.toStdString());
    QTest::keyClick(&modale, tasto);
  };
}

}  // namespace torvi
