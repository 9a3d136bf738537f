// korvane-gallery FOLDER [--dark]: a picture of every window in both unit systems, with a worked
// example in it. Fails, and says where, if a control is cut off or has no name of its own.
// With --tables a picture of every table instead; with --pages the pictures of the help pages.

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <stdexcept>

#include "checks.h"
#include "examples.h"
#include "frame/person.h"
#include "frame/table.h"
#include "player.h"
#include "shell/window_catalogue.h"
#include "toolkit/qt_platform.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

/// Lets the window system answer: a window that grows with a caption does so in a few turns.
void Settle() {
  QEventLoop loop;
  constexpr int milliseconds = 50;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

/// Shows a window with its example done and its animations at their end.
void Work(Session& session, Window& window, const Examples& examples) {
  if (const auto example = examples.find(window.Name()); example != examples.end()) {
    Player(session).Play(window, example->second);
    Settle();
  }
  constexpr int longest = 50;  // ticks, after which an animation has come to its end
  for (Control* control : window.Controls())
    if (auto* timer = dynamic_cast<Timer*>(control))
      for (int tick = 0; timer->IsEnabled() && tick < longest; ++tick)
        Person(session).Waits(*timer);
}

/// Which table a viewer shows; none where it is no viewer.
const char* TableOf(const Session& session, std::string_view window) {
  if (window == "DISPLAY") return session.MetricUnits ? "CoprWirM.dat" : "COPRWIRE.dat";
  if (window == "DISPLAY2") return session.MetricUnits ? "IECframe.dat" : "ACMOTORS.dat";
  return "";
}

void DarkenPalette() {
  QPalette palette(QColor(0x35, 0x35, 0x35));
  palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
  palette.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
  palette.setColor(QPalette::Link, QColor(0x6C, 0xB4, 0xEE));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
  QApplication::setPalette(palette);
}

/// Calls a function with each window of the catalogue in turn, its example worked in it.
template <class Function>
void ForEachWindow(bool metric, Function show) {
  const Examples examples = ReadExamples(metric);
  QtPlatform platform;
  Session session(platform, WindowCatalogue(), FromQt(QApplication::applicationDirPath()));
  platform.Serve(session);
  session.ShowsSplash = false;
  platform.SaveSetting("Units", metric ? "SI" : "US");
  session.Handle([&] { session.Show("MAINFORM"); });
  for (const WindowUnit& unit : WindowCatalogue()) {
    session.DataFileName = TableOf(session, unit.name);
    session.AboutMode = true;  // the splash window in its larger form
    session.Handle([&] {
      if (std::string_view(unit.name) == "Page_Setup")
        session.PrintWindow(session.Show("FlowCalc"));
      else
        session.Show(unit.name);
    });
    Window* window = session.Find(unit.name);
    if (window == nullptr) continue;
    Work(session, *window, examples);
    QApplication::processEvents();
    show(unit.name, *platform.View(*window), examples.contains(unit.name));
    if (window->Menu() == nullptr) session.Handle([&] { session.Unload(*window); });
  }
  session.DropWindows();
}

void Save(const QImage& picture, const QDir& folder, const QString& file) {
  constexpr int best = 0;  // of the compression
  if (!picture.save(folder.filePath(file), "PNG", best))
    throw std::runtime_error("cannot write " + FromQt(folder.filePath(file)));
}

bool DrawWindows(const QDir& folder) {
  bool flawless = true;
  for (const bool metric : {false, true}) {
    ForEachWindow(metric, [&](const char* name, WindowView& view, bool) {
      for (const QString& flaw : FlawsOf(view)) {
        std::fprintf(stderr, "%s: %s\n", name, qPrintable(flaw));
        flawless = false;
      }
      Save(view.grab().toImage(), folder, QString("%1-%2.png").arg(name, metric ? "SI" : "US"));
    });
  }
  return flawless;
}

/// The windows with a worked example, no wider than a help page shows them without a scroll bar.
bool DrawForPages(const QDir& folder) {
  constexpr int widest = 800;
  ForEachWindow(false, [&](const char* name, WindowView& view, bool hasExample) {
    if (!hasExample) return;
    QImage picture = view.grab().toImage();
    if (picture.width() > widest) picture = picture.scaledToWidth(widest, Qt::SmoothTransformation);
    Save(picture, folder, QString("%1.png").arg(name));
  });
  return true;
}

bool IsTable(const Session& session, const std::string& file) {
  try {
    return ParseTable(session.ReadTable(file)).fixedRows > 0;
  } catch (const RuntimeFailure&) {
    return false;  // a calculator's own records
  }
}

bool DrawTables(const QDir& folder) {
  QtPlatform platform;
  Session session(platform, WindowCatalogue(), FromQt(QApplication::applicationDirPath()));
  platform.Serve(session);
  session.ShowsSplash = false;
  session.Handle([&] { session.Show("MAINFORM"); });
  for (const QString& name : QDir(ToQt(session.DataPath)).entryList(QDir::Files)) {
    session.DataFileName = FromQt(name);
    if (!IsTable(session, session.DataFileName)) continue;
    session.Handle([&] { session.Show("DISPLAY"); });
    Settle();
    Window& window = *session.Find("DISPLAY");
    Save(platform.View(window)->grab().toImage(), folder, name + ".png");
    session.Handle([&] { session.Unload(window); });
  }
  session.DropWindows();
  return true;
}

}  // namespace
}  // namespace korvane

int main(int argc, char** argv) {
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 2) {
    std::fprintf(stderr, "korvane-gallery FOLDER [--dark] [--tables | --pages]\n");
    return 2;
  }
  if (arguments.contains("--dark")) korvane::DarkenPalette();
  QDir().mkpath(arguments[1]);
  const QDir folder(arguments[1]);
  const auto draw = arguments.contains("--tables")  ? korvane::DrawTables
                    : arguments.contains("--pages") ? korvane::DrawForPages
                                                    : korvane::DrawWindows;
  try {
    return draw(folder) ? 0 : 1;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
