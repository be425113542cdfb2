#include "shell/finestra_dialoghi.h"

#include <QApplication>
#include <QDate>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <array>

#include "archive/errore.h"
#include "classificazione/frmLista.h"
#include "classificazione/frmLogin.h"
#include "document/frmImmissioneTesto.h"
#include "export/frmWndErrori.h"
#include "report/frmSceltaFileOut.h"
#include "shell/finestra_misure.h"
#include "shell/finestra_scelta_file.h"
#include "shell/frmInformazione.h"

namespace torvi {
namespace {

struct Pulsante {
  QMessageBox::StandardButton codice;
  const char16_t* testo;
  Risposta risposta;
};

constexpr Pulsante kOk = {QMessageBox::Ok, u"OK", Risposta::Ok};
constexpr Pulsante kAnnulla = {QMessageBox::Cancel, u"Annulla", Risposta::Annulla};
constexpr Pulsante kSi = {QMessageBox::Yes, u"&Sì", Risposta::Si};
constexpr Pulsante kNo = {QMessageBox::No, u"&No", Risposta::No};

struct Insieme {
  Pulsanti quali;
  QList<Pulsante> pulsanti;  // the first is the default, the last answers to Esc
};

const QList<Pulsante>& Voci(Pulsanti quali) {
  static const std::array insiemi = {
      Insieme{Pulsanti::Ok, {kOk}},
      Insieme{Pulsanti::OkAnnulla, {kOk, kAnnulla}},
      Insieme{Pulsanti::SiNo, {kSi, kNo}},
      Insieme{Pulsanti::SiNoAnnulla, {kSi, kNo, kAnnulla}},
  };
  return insiemi.at(static_cast<std::size_t>(quali)).pulsanti;
}

QString Titolo(const QString& titolo) {
  return titolo.isEmpty() ? QStringLiteral("TorviEditor") : titolo;
}

// Some words of the system end their lines in a carriage return, which a box would show as a blank.
// What an operator typed may stand in an error, however long: its box has to fit the screen.
QString InLinee(QString testo) {
  constexpr int kCaratteri = 1000;
  constexpr int kLinee = 25;
  testo.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
  const QString mostrato = testo.left(kCaratteri).section(u'\n', 0, kLinee - 1);
  return mostrato.size() < testo.size() ? mostrato + QLatin1String("...") : testo;
}

Risposta Chiedi(QMessageBox& riquadro, Pulsanti quali) {
  const QList<Pulsante>& voci = Voci(quali);
  for (const Pulsante& voce : voci) {
    riquadro.addButton(voce.codice)->setText(QString::fromUtf16(voce.testo));
  }
  riquadro.setDefaultButton(voci.first().codice);
  riquadro.setEscapeButton(voci.last().codice);
  AllargaPerIlTitolo(riquadro);
  const int scelto = riquadro.exec();
  for (const Pulsante& voce : voci) {
    if (voce.codice == scelto) return voce.risposta;
  }
  return voci.last().risposta;
}

}  // namespace

DialoghiFinestra::DialoghiFinestra(QMainWindow& finestra)
    : finestra_(finestra), attesa_(finestra), offerta_(new OffertaFile(finestra, *this)) {}

// The window that is left for a box gets the focus back from it, also one that is not modal. Right
// after a box no window is active yet.
QWidget* DialoghiFinestra::Padre() const {
  QWidgetList candidate = {QApplication::activeModalWidget(), QApplication::activeWindow()};
  for (QDialog* forma : finestra_.findChildren<QDialog*>()) candidate += forma;
  for (QWidget* candidata : candidate) {
    if (candidata != nullptr && candidata->isVisible()) return candidata;
  }
  return &finestra_;
}

void DialoghiFinestra::Messaggio(const QString& testo, const QString& titolo, Icona icona) {
  QMessageBox riquadro(
      icona == Icona::Informazione ? QMessageBox::Information : QMessageBox::NoIcon, Titolo(titolo),
      InLinee(testo), QMessageBox::NoButton, Padre());
  riquadro.setTextFormat(Qt::PlainText);
  Chiedi(riquadro, Pulsanti::Ok);
}

Risposta DialoghiFinestra::Domanda(const QString& testo, const QString& titolo, Pulsanti pulsanti) {
  QMessageBox riquadro(QMessageBox::Question, Titolo(titolo), testo, QMessageBox::NoButton,
                       Padre());
  riquadro.setTextFormat(Qt::PlainText);
  return Chiedi(riquadro, pulsanti);
}

QString DialoghiFinestra::Immissione(const QString& testo, const QString& titolo) {
  QInputDialog riquadro(Padre());
  riquadro.setWindowTitle(Titolo(titolo));
  riquadro.setLabelText(testo);
  riquadro.setOkButtonText(QStringLiteral("OK"));
  riquadro.setCancelButtonText(QStringLiteral("Annulla"));
  riquadro.resize(420, riquadro.sizeHint().height());
  return riquadro.exec() == QDialog::Accepted ? riquadro.textValue() : QString();
}

QString DialoghiFinestra::ScegliFile(const RichiestaFile& richiesta) {
  SceltaFile scelta(*this, richiesta, Padre());
  if (scelta.exec() != QDialog::Accepted) throw ErroreEsecuzione(Errore::OperazioneAnnullata);
  return scelta.Scelto();
}

QString DialoghiFinestra::ChiediInformazione() {
  frmInformazione forma(*this, QDate::currentDate().year(), Padre());
  forma.exec();
  return forma.InfoNuovoArchivio;
}

QString DialoghiFinestra::ScegliFileUscita(const QString& cartella, const QString& modello,
                                           bool conNuovo) {
  frmSceltaFileOut forma(*this, cartella, modello, conNuovo, Padre());
  forma.exec();
  return forma.FileBatch;
}

void DialoghiFinestra::MostraErrori(const QString& testo) { frmWndErrori(testo, Padre()).exec(); }

QString DialoghiFinestra::ChiediTestoEsteso(const QString& etichetta) {
  frmImmissioneTesto forma(etichetta, Padre());
  forma.exec();
  return forma.TestoEsteso;
}

QString DialoghiFinestra::ScegliDaLista(const QStringList& voci) {
  frmLista forma(voci, Padre());
  forma.exec();
  return forma.ValoreLista;
}

bool DialoghiFinestra::ChiediLogin(const QString& passwordRiservata) {
  frmLogin forma(*this, passwordRiservata, passwordErrate_, Padre());
  forma.exec();
  return forma.LoginRiservato;
}

void DialoghiFinestra::FileScritto(const QString& percorso) { offerta_->Offri(percorso); }

void DialoghiFinestra::Attesa(bool attiva) { attesa_.Imposta(attiva); }

void DialoghiFinestra::MostraAvanzamento(const QString& cosa, int fatto, int totale) {
  attesa_.Avanza(cosa, fatto, totale);
}

}  // namespace torvi
