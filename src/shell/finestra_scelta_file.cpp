#include "shell/finestra_scelta_file.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QSplitter>
#include <QTreeView>

#include "shell/finestra_misure.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

// "Words (*.a)|*.a|Other words (*.b)|*.b": pairs of what is shown and what is sought.
QStringList Filtri(const QString& filtro) {
  const QStringList parti = filtro.split(QLatin1Char('|'));
  QStringList filtri;
  for (qsizetype i = 0; i + 1 < parti.size(); i += 2) {
    const QString modello = QStringLiteral("(%1)").arg(parti[i + 1]);
    filtri += parti[i].endsWith(modello) ? parti[i] : parti[i] + QLatin1Char(' ') + modello;
  }
  return filtri;
}

}  // namespace

SceltaFile::SceltaFile(Dialoghi& dialoghi, const RichiestaFile& richiesta, QWidget* padre)
    : QFileDialog(padre, richiesta.titolo), dialoghi_(dialoghi), richiesta_(richiesta) {
  setOption(QFileDialog::DontUseNativeDialog);
  setFileMode(richiesta.deveEsistere ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  setNameFilters(Filtri(richiesta.filtro));
  setDefaultSuffix(richiesta.estensione);
  setDirectory(richiesta.cartella);
  setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
  setLabelText(QFileDialog::FileName, QStringLiteral("&Nome file:"));
  setLabelText(QFileDialog::FileType, QStringLiteral("Tipo file:"));
  setLabelText(QFileDialog::Accept, QStringLiteral("&Apri"));
  setLabelText(QFileDialog::Reject, QStringLiteral("Annulla"));
  Disponi();
}

// Names and dates whole; the kind of file is the same for all.
void SceltaFile::Disponi() {
  enum Colonna { Nome, Dimensione, Tipo, Data };
  auto* vista = findChild<QTreeView*>(QStringLiteral("treeView"));
  if (vista == nullptr) return;
  vista->setColumnHidden(Tipo, true);
  vista->header()->setSectionResizeMode(Nome, QHeaderView::Stretch);
  for (const Colonna colonna : {Dimensione, Data}) {
    vista->header()->setSectionResizeMode(colonna, QHeaderView::ResizeToContents);
  }
  if (auto* divisione = findChild<QSplitter*>(QStringLiteral("splitter"))) {
    divisione->setSizes({150, 600});
  }
  resize(780, 460);
  AdattaAlloSchermo(*this);
}

void SceltaFile::accept() {
  const QString percorso = TrovaPercorso(selectedFiles().value(0));
  if (percorso.isEmpty() || QFileInfo(percorso).isDir()) {
    QFileDialog::accept();  // goes into the folder
    return;
  }
  if (!Accettabile(percorso)) return;
  scelto_ = percorso;
  done(QDialog::Accepted);
}

bool SceltaFile::Accettabile(const QString& percorso) {
  if (QFileInfo::exists(percorso)) return true;
  if (richiesta_.deveEsistere) {
    dialoghi_.Messaggio(
        QStringLiteral("%1\nIl file non esiste. Verificare che il nome sia corretto.")
            .arg(percorso),
        richiesta_.titolo);
    return false;
  }
  return !richiesta_.chiedeSeCreare ||
         dialoghi_.Domanda(QStringLiteral("%1\nIl file non esiste. Crearlo?").arg(percorso),
                           richiesta_.titolo, Pulsanti::SiNo) == Risposta::Si;
}

}  // namespace torvi
