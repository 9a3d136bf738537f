// Opening a large table: the viewer from its file to the first paint, against a QTableWidget that
// is given the same cells. Without a screen: run with QT_QPA_PLATFORM=offscreen.

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QScreen>
#include <QTableWidget>
#include <QTemporaryDir>
#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "../compare.h"
#include "frame/files.h"
#include "frame/table.h"
#include "shell/window_catalogue.h"
#include "toolkit/qt_platform.h"
#include "toolkit/text.h"
#include "toolkit/twips.h"

namespace korvane {
namespace {

constexpr int kRows = 5000;
constexpr int kColumns = 12;
constexpr int kWidth = 1080;   // of a column, twips
constexpr int kAlignment = 7;  // right, centre
constexpr const char* kFile = "large.dat";

std::string CellAt(int row, int column) {
  return (column == 0 ? "Size " : "") + std::to_string(row * (column + 3) % 9973) + '.' +
         std::to_string(row % 100);
}

std::string LargeTable() {
  std::string file = "made for the benchmark\r\nLarge Table\r\n";
  file += std::to_string(kRows) + ',' + std::to_string(kColumns) + ",1,1\r\n";
  for (const int field : {kWidth, kAlignment})
    for (int column = 0; column < kColumns; ++column) file += std::to_string(field) + ',';
  for (int row = 0; row < kRows; ++row)
    for (int column = 0; column < kColumns; ++column)
      file.append("\"")
          .append(CellAt(row, column))
          .append(column + 1 < kColumns ? "\"," : "\"\r\n");
  return file;
}

std::vector<QString> Cells() {
  std::vector<QString> cells;
  for (int row = 0; row < kRows; ++row)
    for (int column = 0; column < kColumns; ++column) cells.push_back(ToQt(CellAt(row, column)));
  return cells;
}

/// Tells whether cells have been painted since the last time.
class PaintWatch : public QObject {
 public:
  PaintWatch() { qApp->installEventFilter(this); }

  void Wait() {
    painted_ = false;
    QElapsedTimer clock;
    clock.start();
    while (!painted_) {
      QApplication::processEvents();
      if (clock.elapsed() > 10'000) throw std::runtime_error("no cell was painted");
    }
  }

 private:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && qobject_cast<QAbstractItemView*>(object->parent()))
      painted_ = true;
    return false;
  }

  bool painted_ = false;
};

/// A table opened in either way, over and over.
class Tables {
 public:
  Tables() : session_(platform_, WindowCatalogue(), FromQt(folder_.path())) {
    WriteFile(FromQt(folder_.filePath(kFile)), LargeTable());
    platform_.Serve(session_);
    session_.DataPath = FromQt(folder_.path()) + kSeparator;
    session_.DataFileName = kFile;
  }
  ~Tables() { session_.DropWindows(); }

  void OpenViewer() {
    session_.Handle([this] { session_.Show("DISPLAY"); });
    paints_.Wait();
  }
  void CloseViewer() {
    session_.Handle([this] { session_.Unload("DISPLAY"); });
    Forget();
  }

  /// The cells are there already, as the toolkit's texts; the viewer reads them from the file.
  void OpenWidget(const std::vector<QString>& cells) {
    widget_ = std::make_unique<QTableWidget>(kRows, kColumns);
    for (int column = 0; column < kColumns; ++column)
      widget_->setColumnWidth(column, PixelsOf(*widget_, kWidth));
    auto cell = cells.begin();
    for (int row = 0; row < kRows; ++row)
      for (int column = 0; column < kColumns; ++column) {
        auto* item = new QTableWidgetItem(*cell++);
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        widget_->setItem(row, column, item);
      }
    widget_->resize(QGuiApplication::primaryScreen()->availableSize());
    widget_->show();
    paints_.Wait();
  }
  void CloseWidget() {
    widget_.reset();
    Forget();
  }

 private:
  static void Forget() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QTemporaryDir folder_;
  PaintWatch paints_;
  QtPlatform platform_;
  Session session_;
  std::unique_ptr<QTableWidget> widget_;
};

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void TableOpening(benchmark::State& state) {
  constexpr double most = 0.5;
  Tables tables;
  const std::vector<QString> cells = Cells();
  std::vector<double> viewer, widget;
  for ([[maybe_unused]] auto round : state) {
    viewer.push_back(Seconds([&] { tables.OpenViewer(); }));
    tables.CloseViewer();
    widget.push_back(Seconds([&] { tables.OpenWidget(cells); }));
    tables.CloseWidget();
  }
  const double ratio = Median(viewer) / Median(widget);
  Report(state, ratio, "at most", most, ratio <= most);
}
BENCHMARK(TableOpening)->Unit(benchmark::kMillisecond)->Iterations(25);

void TableParsing(benchmark::State& state) {
  constexpr double least = 5'000'000;
  const std::string file = LargeTable();
  double best = 0;
  for ([[maybe_unused]] auto round : state)
    best = std::max(
        best, kRows * kColumns / Seconds([&file] { benchmark::DoNotOptimize(ParseTable(file)); }));
  Report(state, best, "cells a second, at least", least, best >= least);
}
BENCHMARK(TableParsing)->Unit(benchmark::kMillisecond);

// ---- Memory ----

/// Peak memory of this process so far, in KiB. (What getrusage tells of a child process may be its
/// parent's.)
double PeakMemory() {
  std::ifstream status("/proc/self/status");
  std::string word;
  double peak = 0;
  while (status >> word)
    if (word == "VmHWM:") status >> peak;
  return peak;
}

/// The same of this program, run anew to open one table in that way.
double PeakOf(const char* way) {
  QProcess run;
  run.start(QApplication::applicationFilePath(), {way});
  if (!run.waitForFinished() || run.exitCode() != 0) throw std::runtime_error("the run failed");
  return run.readAllStandardOutput().toDouble();
}

constexpr const char* kViewer = "--open-viewer";
constexpr const char* kWidget = "--open-widget";

void TablePeakMemory(benchmark::State& state) {
  double viewer = 0, widget = 0;
  for ([[maybe_unused]] auto round : state) {
    viewer = PeakOf(kViewer);
    widget = PeakOf(kWidget);
  }
  Report(state, viewer, "KiB, at most", widget, viewer <= widget);
}
BENCHMARK(TablePeakMemory)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace korvane

int main(int argc, char** argv) {
  using namespace korvane;
  // A platform without a screen tells at each window what it can't do.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const std::string_view way = argc > 1 ? argv[1] : "";
  if (way == kViewer || way == kWidget) {
    Tables tables;
    if (way == kViewer)
      tables.OpenViewer();
    else
      tables.OpenWidget(Cells());
    std::printf("%f", PeakMemory());
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
