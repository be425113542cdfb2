#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
  // Also while the tests are only listed, which happens outside their environment.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication applicazione(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
