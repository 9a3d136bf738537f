// Korvane: the desktop program.

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include "shell/window_catalogue.h"
#include "toolkit/qt_platform.h"
#include "toolkit/text.h"

int main(int, char** argv) {
  int count = 1;  // the program reads no command line, the toolkit's options included
  QApplication app(count, argv);
  QApplication::setApplicationName(korvane::kProgramName);
  QApplication::setDesktopFileName("korvane");
  // The drawing of the icon is read once the first window is up, which it would hold up.
  QTimer::singleShot(100, [] { QApplication::setWindowIcon(QIcon(":/korvane.svg")); });
  QApplication::setQuitOnLastWindowClosed(false);  // the session knows when the last one has gone

  korvane::QtPlatform platform;
  korvane::Session session(platform, korvane::WindowCatalogue(),
                           korvane::FromQt(QApplication::applicationDirPath()));
  platform.Serve(session);
  session.Handle([&session] { session.Show("MAINFORM"); });
  return session.Windows().empty() ? 0 : QApplication::exec();
}
