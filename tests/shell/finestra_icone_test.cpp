#include "shell/finestra_icone.h"

#include <gtest/gtest.h>

#include <QDir>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

QImage Disegno(const QString& nome) {
  return IconaDi(nome).pixmap(QSize(24, 24), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
}

// Pixels whose brightness an eye without colours would tell apart.
int PuntiDiversi(const QImage& uno, const QImage& altro) {
  int diversi = 0;
  for (int punto = 0; punto < 24 * 24; ++punto) {
    const QRgb a = uno.pixel(punto % 24, punto / 24);
    const QRgb b = altro.pixel(punto % 24, punto / 24);
    if (qAbs(qGray(a) * qAlpha(a) - qGray(b) * qAlpha(b)) > 64 * 255) ++diversi;
  }
  return diversi;
}

TEST(Icone, EveryDrawingInTheFolderIsInTheProgramAndNotBlank) {
  const auto disegni = QDir(FileProgetto("risorse/icone")).entryInfoList({"*.svg"});
  EXPECT_EQ(disegni.size(), 16);
  QImage vuota(24, 24, QImage::Format_ARGB32);
  vuota.fill(Qt::transparent);
  for (const QFileInfo& file : disegni) {
    const QImage disegno = Disegno(file.completeBaseName());
    ASSERT_EQ(disegno.size(), vuota.size()) << file.fileName().toStdString();
    EXPECT_GT(PuntiDiversi(disegno, vuota), 24) << file.fileName().toStdString();
  }
  EXPECT_EQ(NumeroErrore([] { (void)IconaDi("altra"); }), 53);
}

TEST(Icone, ATextThatExistsShowsWithoutColoursToo) {
  for (const auto& nome : {"write", "export", "npad", "npadwrit"}) {
    const QString piana = nome;
    EXPECT_GT(PuntiDiversi(Disegno(piana), Disegno(piana + "-r")), 60) << nome;
  }
}

}  // namespace
}  // namespace torvi
