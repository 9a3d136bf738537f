// Runs the cases in an application without a screen, with settings of its own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  return RUN_ALL_TESTS();
}
