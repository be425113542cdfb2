// The controls of the document form and the values they stand for.
#include <QPlainTextEdit>
#include <QScopedValueRollback>

#include "document/carica.h"
#include "document/frmDocumento.h"
#include "document/testi_documento.h"
#include "shell/finestra_fuoco.h"
#include "shell/finestra_icone.h"
#include "shell/finestra_testo.h"
#include "ui_frmDocumento.h"

namespace torvi {
namespace {

using F = Ui::frmDocumento;
using C = CampiDocumento;

struct CampoRiga {
  QLineEdit* Ui_frmDocumento::*controllo;
  QString C::*valore;
  bool seleziona;  // whole, when it gets the focus
};
constexpr CampoRiga kRighe[] = {
    {&F::txtID, &C::txtID, false},
    {&F::txtAnnoPr, &C::txtAnnoPr, false},
    {&F::txtCPer, &C::txtCPer, true},
    {&F::txtRivista, &C::txtRivista, false},
    {&F::txtFascicolo, &C::txtFascicolo, true},
    {&F::txtAnnata, &C::txtAnnata, true},
    {&F::txtVolume, &C::txtVolume, true},
    {&F::txtParte, &C::txtParte, true},
    {&F::txtSerie, &C::txtSerie, true},
    {&F::txtSuppl, &C::txtSuppl, true},
    {&F::txtSez, &C::txtSez, true},
    {&F::txtGG, &C::txtGG, true},
    {&F::txtMM, &C::txtMM, true},
    {&F::txtAA, &C::txtAA, true},
    {&F::txtPagine, &C::txtPagine, true},
};

struct CampoTesto {
  TestoDiUnaRiga* Ui_frmDocumento::*controllo;
  QString C::*valore;
};
constexpr CampoTesto kTesti[] = {{&F::txtTitolo, &C::txtTitolo}, {&F::txtNota, &C::txtNota}};

struct CampoCombo {
  QComboBox* Ui_frmDocumento::*controllo;
  QString C::*valore;
  QStringList CodiciDocumento::*voci;
  QString (*segnaposto)();
};
constexpr CampoCombo kCombo[] = {
    {&F::ComboLIN, &C::ComboLIN, &CodiciDocumento::ComboLIN, SegnapostoLIN},
    {&F::ComboTD, &C::ComboTD, &CodiciDocumento::ComboTD, SegnapostoTD},
    {&F::ComboTAbs, &C::ComboTAbs, &CodiciDocumento::ComboTAbs, SegnapostoTAbs},
    {&F::ComboBib, &C::ComboBib, &CodiciDocumento::ComboBib, SegnapostoBib},
};

struct CampoLista {
  QListWidget* Ui_frmDocumento::*controllo;
  QStringList C::*linee;
  qint16 Documento::*indice;
};
constexpr CampoLista kListe[] = {
    {&F::lstResponsabilita, &C::lstResponsabilita, &Documento::IndiceResponsabilita},
    {&F::lstClassificazione, &C::lstClassificazione, &Documento::IndiceClasse},
    {&F::lstFonte, &C::lstFonte, &Documento::IndiceFonte},
};

// The line that the commands of a list work on: -1 where none is selected.
qint16 RigaScelta(const QListWidget& lista) {
  const QListWidgetItem* corrente = lista.currentItem();
  if (corrente != nullptr && corrente->isSelected())
    return static_cast<qint16>(lista.row(corrente));
  const QList<QListWidgetItem*> scelte = lista.selectedItems();
  return scelte.isEmpty() ? qint16{-1} : static_cast<qint16>(lista.row(scelte.constFirst()));
}

// A tooltip breaks a long line only where it is rich text.
QString Suggerimento(const QString& linea) {
  return QStringLiteral("<p>") + linea.toHtmlEscaped() + QStringLiteral("</p>");
}

}  // namespace

void frmDocumento::CollegaCampi() {
  for (const CampoRiga& campo : kRighe) {
    QLineEdit* controllo = (*ui_).*campo.controllo;
    controllo->installEventFilter(this);
    TieneInUnaRiga(*controllo);
    connect(controllo, &QLineEdit::textChanged, this, &frmDocumento::AggiornaStato);
    connect(controllo, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
  }
  for (const CampoTesto& campo : kTesti) {
    QPlainTextEdit* controllo = (*ui_).*campo.controllo;
    controllo->installEventFilter(this);
    connect(controllo, &QPlainTextEdit::textChanged, this, &frmDocumento::AggiornaStato);
  }
  for (const CampoCombo& campo : kCombo) {
    QComboBox* controllo = (*ui_).*campo.controllo;
    combo_.push_back(new ComboDiCodici(*controllo, campo.segnaposto()));
    controllo->installEventFilter(this);
    connect(controllo, &QComboBox::editTextChanged, this, &frmDocumento::AggiornaStato);
  }
  for (const CampoLista& campo : kListe) {
    QListWidget* controllo = (*ui_).*campo.controllo;
    controllo->installEventFilter(this);
    connect(controllo, &QListWidget::itemPressed, this, [this, campo, controllo] {
      documento_.*campo.indice = static_cast<qint16>(controllo->currentRow());
    });
    connect(controllo, &QListWidget::itemSelectionChanged, this, [this, campo, controllo] {
      if (!mostra_) documento_.*campo.indice = RigaScelta(*controllo);
    });
    connect(controllo, &QListWidget::currentRowChanged, this, [this, campo, controllo] {
      if (!mostra_) documento_.*campo.indice = RigaScelta(*controllo);
    });
  }
  uscita_ = std::make_unique<UscitaCampo>(*ui_->txtCPer, *ui_->cmdAbbandona,
                                          [this] { return txtCPer_LostFocus(); });
}

void frmDocumento::Entra(const QObject* controllo, Qt::FocusReason motivo) {
  for (const CampoRiga& campo : kRighe) {
    QLineEdit* riga = (*ui_).*campo.controllo;
    if (riga == controllo && campo.seleziona) SelezionaTutto(*riga, motivo);
  }
  for (const CampoTesto& campo : kTesti) {
    QPlainTextEdit* testo = (*ui_).*campo.controllo;
    if (testo == controllo) SelezionaTutto(*testo, motivo);
  }
  EntraInLista(controllo, motivo);
}

// The first person is selected on entering; the other lists keep what is selected, and where
// nothing is, the keys take the first line, as the mouse takes what it points at.
void frmDocumento::EntraInLista(const QObject* controllo, Qt::FocusReason motivo) {
  for (const CampoLista& campo : kListe) {
    QListWidget* lista = (*ui_).*campo.controllo;
    if (lista != controllo || lista->count() == 0) continue;
    const bool vuota = lista->selectedItems().isEmpty() && motivo != Qt::MouseFocusReason;
    if (lista == ui_->lstResponsabilita || vuota) lista->setCurrentRow(0);
    documento_.*campo.indice = RigaScelta(*lista);
  }
}

void frmDocumento::LeggiCampi() {
  C& campi = documento_.campi;
  for (const CampoRiga& campo : kRighe) campi.*campo.valore = ((*ui_).*campo.controllo)->text();
  for (const CampoTesto& campo : kTesti) {
    campi.*campo.valore = TestoMostrato(*((*ui_).*campo.controllo));
  }
  for (const CampoCombo& campo : kCombo) {
    campi.*campo.valore = ((*ui_).*campo.controllo)->currentText();
  }
}

void frmDocumento::MostraCampi() {
  const C campi = documento_.campi;
  {
    const QScopedValueRollback guardia(mostra_, true);
    for (const CampoRiga& campo : kRighe) {
      QLineEdit* controllo = (*ui_).*campo.controllo;
      if (controllo->text() != campi.*campo.valore) controllo->setText(campi.*campo.valore);
    }
    for (const CampoTesto& campo : kTesti) {
      QPlainTextEdit* controllo = (*ui_).*campo.controllo;
      if (TestoMostrato(*controllo) != campi.*campo.valore) {
        MostraTesto(*controllo, campi.*campo.valore);
      }
    }
    for (std::size_t i = 0; i < std::size(kCombo); ++i) {
      MostraVoci(*((*ui_).*kCombo[i].controllo), documento_.codici.*kCombo[i].voci);
      combo_[i]->Mostra(campi.*kCombo[i].valore);
    }
    for (const CampoLista& campo : kListe) {
      MostraLista(*((*ui_).*campo.controllo), campi.*campo.linee, documento_.*campo.indice);
    }
    MostraIcone();
    MostraGuasto();
  }
  MostraFuoco();
  // What is on screen now is what later changes are told from.
  LeggiCampi();
  if (!salvato_) salvato_ = Contenuto(documento_);
  AggiornaStato();
}

void frmDocumento::MostraVoci(QComboBox& combo, const QStringList& voci) {
  QStringList presenti;
  for (int i = 0; i < combo.count(); ++i) presenti += combo.itemText(i);
  if (presenti == voci) return;
  combo.clear();
  combo.addItems(voci);
}

// Lines that only changed their words keep the operator's selection, as long as the commands work
// on it too.
void frmDocumento::MostraLista(QListWidget& lista, const QStringList& linee, qint16 scelta) {
  if (lista.count() != linee.size()) {
    lista.clear();
    lista.addItems(linee);
    lista.setCurrentRow(scelta);
  } else if (scelta < 0) {
    lista.setCurrentRow(-1);
    lista.clearSelection();
  }
  for (int i = 0; i < lista.count(); ++i) {
    lista.item(i)->setText(linee.at(i));
    lista.item(i)->setToolTip(Suggerimento(linee.at(i)));
  }
}

// A document that could not be loaded takes no text: there is nothing whole to save it with.
void frmDocumento::MostraGuasto() {
  const bool guasto = !documento_.guasto.isEmpty();
  ui_->LabelGuasto->setVisible(guasto);
  ui_->LabelGuasto->setText(guasto ? DescriviStato(documento_, false) : QString());
  for (const CampoRiga& campo : kRighe) {
    QLineEdit* controllo = (*ui_).*campo.controllo;
    if (campo.seleziona) controllo->setReadOnly(guasto);
  }
  for (const CampoTesto& campo : kTesti) ((*ui_).*campo.controllo)->setReadOnly(guasto);
  for (const CampoCombo& campo : kCombo) ((*ui_).*campo.controllo)->setEnabled(!guasto);
}

void frmDocumento::MostraIcone() {
  for (const TestoDocumento& testo : GeneriDiTesto()) {
    if (testo.pulsante == nullptr) continue;
    const bool esiste = documento_.campi.icone.at(static_cast<std::size_t>(testo.tipo - '0'));
    const QString icona = QLatin1String(testo.icona) + QLatin1String(esiste ? "-r" : "");
    findChild<QPushButton*>(QLatin1String(testo.pulsante))->setIcon(IconaDi(icona));
  }
}

void frmDocumento::MostraFuoco() {
  if (documento_.fuoco.isEmpty()) return;
  auto* controllo = findChild<QWidget*>(documento_.fuoco);
  documento_.fuoco.clear();
  if (controllo != nullptr) controllo->setFocus();
}

}  // namespace torvi
