// korvane-gallery FOLDER [--dark]: a picture of every window in both unit systems, with a worked
// example in it. Fails, and says where, if a control is cut off.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <cstdio>
#include <utility>
#include <vector>

#include "shell/window_catalogue.h"
#include "toolkit/qt_platform.h"
#include "toolkit/text.h"

namespace korvane {
namespace {

/// What is typed into a window before its picture is taken, and where Enter is pressed then.
struct Example {
  const char* window;
  std::vector<std::pair<const char*, const char*>> us;
  std::vector<std::pair<const char*, const char*>> metric;
  const char* enter;
};

const std::vector<Example>& Examples() {
  static const std::vector<Example> examples = {
      {"FlowCalc", {{"dia", "1"}, {"pressure", "1"}}, {{"dia", "0.1"}, {"pressure", "250"}}, "dia"},
  };
  return examples;
}

void Work(Session& session, Window& window) {
  const Person person(session);
  for (const Example& example : Examples()) {
    if (window.Name() != example.window) continue;
    for (const auto& [name, text] : session.MetricUnits ? example.metric : example.us)
      person.Types(dynamic_cast<FocusControl&>(*window.Find(name)), text);
    person.Focuses(dynamic_cast<FocusControl&>(*window.Find(example.enter)));
    person.Presses(window, Key::Enter);
  }
  constexpr int longest = 50;  // ticks, after which an animation has come to its end
  for (Control* control : window.Controls())
    if (auto* timer = dynamic_cast<Timer*>(control))
      for (int tick = 0; timer->IsEnabled() && tick < longest; ++tick) person.Waits(*timer);
}

/// The room that a widget needs to show all that it holds.
QSize NeededSize(const QWidget& widget) {
  const QSize least = widget.minimumSizeHint();
  if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->wordWrap())
    return label->fontMetrics()
        .boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text())
        .size();
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->sizeHint();
  // A number must be seen whole; addresses scroll.
  if (const auto* field = qobject_cast<const QLineEdit*>(&widget);
      field && field->alignment().testFlag(Qt::AlignRight)) {
    constexpr int margins = 4;  // pixels, within the frame
    const int frame = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field);
    const int text = field->fontMetrics().horizontalAdvance(field->text());
    return least.expandedTo({text + margins + 2 * frame, 0});
  }
  return least;
}

/// Tells, and answers whether there are, widgets with less room than they need.
bool IsCutOff(const QWidget& view) {
  bool cut = false;
  for (const QWidget* child : view.findChildren<QWidget*>()) {
    const bool isCaption = qobject_cast<const QLabel*>(child) != nullptr;
    if (!child->isVisible() || (child->objectName().isEmpty() && !isCaption)) continue;
    const QSize needed = NeededSize(*child);
    const bool fits = child->width() >= needed.width() && child->height() >= needed.height();
    const bool inside = child->parentWidget()->rect().contains(child->geometry());
    const bool entriesLeftOver = child->objectName() == "qt_menubar_ext_button";
    if (fits && inside && !entriesLeftOver) continue;
    const QString name =
        isCaption ? static_cast<const QLabel*>(child)->text() : child->objectName();
    std::fprintf(stderr, "%s: \"%s\" is %d x %d%s, and needs %d x %d\n",
                 qPrintable(view.objectName()), qPrintable(name), child->width(), child->height(),
                 inside ? "" : ", beyond its parent's edge", needed.width(), needed.height());
    cut = true;
  }
  return cut;
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

int Draw(const QDir& folder) {
  bool cut = false;
  QtPlatform platform;
  for (const bool metric : {false, true}) {
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
      Work(session, *window);
      QApplication::processEvents();
      WindowView& view = *platform.View(*window);
      cut = IsCutOff(view) || cut;
      const QString file = QString("%1-%2.png").arg(unit.name, metric ? "SI" : "US");
      if (!view.grab().save(folder.filePath(file))) return 1;
      if (window->Menu() == nullptr) session.Handle([&] { session.Unload(*window); });
    }
    session.DropWindows();
  }
  return cut ? 1 : 0;
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
    std::fprintf(stderr, "korvane-gallery FOLDER [--dark]\n");
    return 2;
  }
  if (arguments.contains("--dark")) korvane::DarkenPalette();
  QDir().mkpath(arguments[1]);
  return korvane::Draw(QDir(arguments[1]));
}
