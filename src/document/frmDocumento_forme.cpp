// The subordinate forms that the document form opens, and the marks of its lists.
#include "classificazione/frmClassificazione.h"
#include "classificazione/frmClassificazione1999.h"
#include "classificazione/righe_classe.h"
#include "document/carica.h"
#include "document/carica_parti.h"
#include "document/frmDocumento.h"
#include "document/frmNota.h"
#include "document/frmNotaAmb.h"
#include "document/frmResponsabilita.h"
#include "document/frmTraduzione.h"
#include "document/righe_liste.h"
#include "document/testi_documento.h"
#include "fonti/frmModificaFonte.h"
#include "fonti/frmSceltaTipoFonte.h"
#include "fonti/frmTabAltraFonte.h"
#include "fonti/frmTabInterna.h"
#include "fonti/righe_fonte.h"
#include "fonti/salva_fonte.h"
#include "fonti/tipi_fonte.h"
#include "shell/guardia.h"
#include "testi/frmRiassunto.h"
#include "ui_frmDocumento.h"

namespace torvi {
namespace {

std::vector<int> Scelte(const QListWidget& lista) {
  std::vector<int> posti;
  for (int i = 0; i < lista.count(); ++i) {
    if (lista.item(i)->isSelected()) posti.push_back(i);
  }
  return posti;
}

template <typename Forma>
bool ModificaClasse(Forma& forma, bool nuova) {
  if (!nuova) forma.PreparaClasseDaModificare();
  return forma.exec() == QDialog::Accepted;
}

}  // namespace

void frmDocumento::cmdResponsabilitaN_Click() {
  documento_.IndiceResponsabilita = -1;
  ApreResponsabilita(true);
}

void frmDocumento::cmdResponsabilitaM_Click() { ApreResponsabilita(false); }

void frmDocumento::ApreResponsabilita(bool nuova) {
  frmResponsabilita forma(stato_, dialoghi_, documento_.IndiceResponsabilita, this);
  if (nuova) {
    forma.PreparaResponsabilitaNuova();
  } else {
    forma.PreparaResponsabilitaModifica();
  }
  if (forma.exec() == QDialog::Accepted) {
    documento_.campi.lstResponsabilita = RigheLista(stato_.RigheResponsabilita);
  }
}

void frmDocumento::cmdClasseN_Click() { ApreClasse(true); }
void frmDocumento::cmdClasseM_Click() { ApreClasse(false); }

void frmDocumento::ApreClasse(bool nuova) {
  if (!AnnoPerClassificare(documento_)) return;
  stato_.NuovaClasse = nuova;
  bool salvata = false;
  if (SchemaPrima2000(documento_.campi)) {
    frmClassificazione1999 forma(stato_, dialoghi_, documento_.IndiceClasse, this);
    salvata = ModificaClasse(forma, nuova);
  } else {
    frmClassificazione forma(stato_, dialoghi_, documento_.IndiceClasse, this);
    salvata = ModificaClasse(forma, nuova);
  }
  if (salvata) documento_.campi.lstClassificazione = RigheLista(stato_.RigheClasse);
}

void frmDocumento::cmdFonteN_Click() {
  stato_.NuovaFonte = true;
  frmSceltaTipoFonte(stato_, this).exec();
  const std::optional<TipoFonte> tipo = TrovaTipoFonte(stato_.TipoFonteScelto);
  if (!tipo) return;
  // Under the main window and not under this form, or the area of the documents would take
  // Ctrl+Tab, which goes through the tabs.
  if (tipo->scheda < 0) {
    if (frmTabInterna(stato_, dialoghi_, window()).exec() == QDialog::Accepted) {
      documento_.campi.lstFonte = RigheLista(stato_.RigheFonte, RegolaLista::DopoInterna);
    }
    return;
  }
  frmTabAltraFonte forma(stato_, dialoghi_, window());
  forma.ScegliScheda(tipo->scheda);
  if (forma.exec() == QDialog::Accepted) documento_.campi.lstFonte = RigheDopoAltra(stato_);
}

void frmDocumento::cmdFonteM_Click() {
  stato_.NuovaFonte = false;
  frmModificaFonte forma(stato_, dialoghi_, documento_.IndiceFonte, this);
  forma.PreparaFonteDaModificare();
  if (forma.exec() == QDialog::Accepted) documento_.campi.lstFonte = RigheLista(stato_.RigheFonte);
}

void frmDocumento::cmdResponsabilitaD_Click() {
  ComandoElimina(documento_, Lista::Responsabilita, Scelte(*ui_->lstResponsabilita));
}

void frmDocumento::cmdClasseD_Click() {
  ComandoElimina(documento_, Lista::Classi, Scelte(*ui_->lstClassificazione));
}

void frmDocumento::cmdFonteD_Click() {
  ComandoElimina(documento_, Lista::Fonti, Scelte(*ui_->lstFonte));
}

void frmDocumento::cmdFonteT_Click() { ComandoFonteInNota(documento_); }

void frmDocumento::cmdRiassunto_Click() { ApreRiassunto("0", 1); }
void frmDocumento::cmdSommario_Click() { ApreRiassunto("1", 2); }
void frmDocumento::cmdInTemaDi_Click() { ApreRiassunto("2", 7); }
void frmDocumento::cmdEnglishAbstract_Click() { ApreRiassunto("3", 8); }

void frmDocumento::ApreRiassunto(const char* tipo, std::size_t genere) {
  stato_.TipoTestoRiassunto = QLatin1String(tipo);
  if (frmRiassunto(stato_, dialoghi_, dizionari_, this).exec() == QDialog::Accepted) {
    SegnaTesto(genere);
  }
}

void frmDocumento::cmdTraduzione_Click() { ApreTestoBreve<frmTraduzione>(3); }
void frmDocumento::cmdNotaDoc_Click() { ApreTestoBreve<frmNota>(5); }
void frmDocumento::cmdNota_Click() { ApreTestoBreve<frmNotaAmb>(6); }

template <typename Forma>
void frmDocumento::ApreTestoBreve(std::size_t genere) {
  Forma forma(stato_, dialoghi_, NumeroDocumento(documento_), this);
  if (forma.exec() == QDialog::Accepted) SegnaTesto(genere);
}

void frmDocumento::SegnaTesto(std::size_t genere) {
  const TestoDocumento& testo = GeneriDiTesto()[genere];
  documento_.campi.icone[genere] = !Valore(documento_, testo).isEmpty();
}

void frmDocumento::cmdCancellaNotaCompilatore_Click() {
  ComandoCancellaNotaCompilatore(documento_);
}

bool frmDocumento::txtCPer_LostFocus() {
  LeggiCampi();
  Esegui(dialoghi_, [this] { ControllaPeriodico(documento_); });
  const bool valido = documento_.fuoco.isEmpty();
  documento_.fuoco.clear();
  MostraCampi();
  return valido;
}

}  // namespace torvi
