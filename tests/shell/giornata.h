// An operator before the main window: a delivery opened, keys pressed on whatever has the focus,
// and the rows that came of it.
#pragma once

#include "comune/cartella_di_prova.h"
#include "comune/tastiera.h"
#include "comune/tavole.h"
#include "shell/MDIEditorTorvi.h"
#include "shell/avvio.h"

namespace torvi {

class GiornataDiLavoro : public testing::Test {
 protected:
  GiornataDiLavoro() {
    // A delivery as the program leaves it after "Nuovo database".
    cartella.StatoConCodici().DbArchivio.Close();
    PreparaStato(stato, cartella.Percorso());
    finestra = std::make_unique<MDIEditorTorvi>(stato);
    finestra->resize(1300, 680);
    finestra->show();
    Fa("{Alt+F}a", {Forma("Apri archivio", "A01.MDB{Return}")});
  }
  // Keys on the main window, and what the operator does in each form that they open.
  void Fa(const QString& copione, std::deque<Passo> passi = {}) const {
    Attiva();
    Operatore::Esegue([&copione] { Batti(copione); }, std::move(passi));
  }
  void Attiva() const {
    finestra->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  }
  // Tab after Tab.
  void VaiA(const char* controllo) const {
    Attiva();
    for (int volte = 0; volte < 60; ++volte) {
      const QWidget* fuoco = QApplication::focusWidget();
      if (fuoco != nullptr && fuoco->objectName() == controllo) return;
      Batti("{Tab}");
    }
    FAIL() << "no Tab leads to " << controllo;
  }
  void Preme(const char* pulsante, std::deque<Passo> passi = {}) const {
    VaiA(pulsante);
    Fa(" ", std::move(passi));
  }
  // The rows of a statement, a line each; `colonne` by blanks.
  [[nodiscard]] std::string Righe(const char* colonne, const char* da) const {
    return RigheTesto(stato.DbArchivio, QStringLiteral("select * from ") + da,
                      QString(colonne).split(' '))
        .join('\n')
        .toStdString();
  }
  // All three of the export's questions answered, its bytes those of a file of tests/dati/.
  void EsportaEConfronta(const char* atteso) const {
    Fa("{Alt+E}fi",
       {Riquadro("Esportazione per ISIS|Controllo presenza fonti?|Sì|No", Qt::Key_N),
        Riquadro("Esportazione|Accodare risultato dell'esportazione?|Sì|No", Qt::Key_N),
        Riquadro("TorviEditor|Fine esportazione della consegna A01|OK")});
    EXPECT_EQ(Byte(cartella.Dump("lexxdump isis.A01")).toStdString(), Dati(atteso));
  }

  const QString salvato = "TorviEditor|Documento salvato!|OK";
  const CartellaDiProva cartella;
  StatoGlobale stato;
  std::unique_ptr<MDIEditorTorvi> finestra;
};

}  // namespace torvi
