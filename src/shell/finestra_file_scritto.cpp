#include "shell/finestra_file_scritto.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QUrl>

namespace torvi {

OffertaFile::OffertaFile(QMainWindow& finestra, Dialoghi& dialoghi)
    : QWidget(finestra.statusBar()),
      dialoghi_(dialoghi),
      barra_(*finestra.statusBar()),
      nome_(new QLabel(this)) {
  setObjectName(QStringLiteral("offertaFile"));
  nome_->setObjectName(QStringLiteral("nomeFileScritto"));
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(4, 0, 4, 0);
  fila->addWidget(nome_);
  const auto pulsante = [this, fila](const char* nome, const QString& testo) {
    auto* nuovo = new QPushButton(testo, this);
    nuovo->setObjectName(QLatin1String(nome));
    nuovo->setFocusPolicy(Qt::NoFocus);  // the keys stay with the form on screen
    fila->addWidget(nuovo);
    return nuovo;
  };
  connect(pulsante("cmdApriFile", QStringLiteral("Apri")), &QPushButton::clicked, this,
          [this] { Apri(percorso_); });
  connect(pulsante("cmdApriCartella", QStringLiteral("Apri cartella")), &QPushButton::clicked, this,
          [this] { Apri(QFileInfo(percorso_).absolutePath()); });
  barra_.addWidget(this);
  connect(&barra_, &QStatusBar::messageChanged, this, &OffertaFile::Mostra);
  Mostra();
}

void OffertaFile::Offri(const QString& percorso) {
  percorso_ = percorso;
  nome_->setText(QFileInfo(percorso).fileName());
  setToolTip(QDir::toNativeSeparators(percorso));
  Mostra();
}

void OffertaFile::Mostra() {
  setVisible(!percorso_.isEmpty() && barra_.currentMessage().isEmpty());
}

void OffertaFile::Apri(const QString& percorso) {
  if (QFileInfo::exists(percorso) && QDesktopServices::openUrl(QUrl::fromLocalFile(percorso))) {
    return;
  }
  dialoghi_.Messaggio(QStringLiteral("Non si riesce ad aprire ") + percorso);
}

}  // namespace torvi
