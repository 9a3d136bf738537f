// Pages printed to a PDF file, rendered by another program and measured; and the page dialog's
// preview of them.
#include "toolkit/printing.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QTimer>

#include "../support/temporary_folder.h"
#include "desktop.h"
#include "frame/page_layout.h"
#include "toolkit/capture.h"
#include "toolkit/picture_widget.h"

namespace korvane::testing {
namespace {

constexpr int kTwipsPerPixel = 10;  // at which pages are looked at: 144 dots per inch

/// Takes the picture of a red window, 400 x 200.
void CaptureRed() {
  QWidget window;
  window.setPalette(QColor(255, 0, 0));
  window.resize(400, 200);
  window.show();
  capture::Take(window);
}

bool IsRed(QRgb pixel) { return qRed(pixel) > 200 && qGreen(pixel) < 60 && qBlue(pixel) < 60; }
bool IsDark(QRgb pixel) { return qGray(pixel) < 100 && qRed(pixel) < 100; }

/// The smallest rectangle around all such pixels.
QRect Bounds(const QImage& image, bool (*wanted)(QRgb)) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (wanted(image.pixel(x, y))) bounds |= QRect(x, y, 1, 1);
  return bounds;
}

void ExpectNear(const QRect& seen, const QRectF& expected) {
  EXPECT_NEAR(seen.left(), expected.left(), 2);
  EXPECT_NEAR(seen.top(), expected.top(), 2);
  EXPECT_NEAR(seen.width(), expected.width(), 2);
  EXPECT_NEAR(seen.height(), expected.height(), 2);
}

QRectF Scaled(const Placement& place, double scale) {
  return {place.x.Value() * scale, place.y.Value() * scale, place.width.Value() * scale,
          place.height.Value() * scale};
}

class PrintedPages : public ::testing::Test {
 protected:
  /// The pages of the file, as pictures.
  QList<QImage> Rendered() {
    QProcess renderer;
    renderer.start("pdftoppm", {"-r", QString::number(1440 / kTwipsPerPixel), "-png", ToQt(file),
                                ToQt(folder.File("page"))});
    EXPECT_TRUE(renderer.waitForFinished() && renderer.exitCode() == 0)
        << renderer.readAllStandardError().toStdString();
    QList<QImage> pages;
    const QDir images(ToQt(folder.Path()));
    for (const QString& name : images.entryList({"page*.png"}))
      pages << QImage(images.filePath(name));
    return pages;
  }

  TemporaryFolder folder;
  std::string file = folder.File("page.pdf");
  Printing printing;
};

TEST_F(PrintedPages, HaveTheImageWhereItIsPlaced) {
  struct Case {
    const char* what;
    Orientation orientation;
    PageChoices choices;
    bool header;
  };
  const Case kCases[] = {
      {"in the corner", Orientation::Portrait, {.percent = 100}, false},
      {"with margins",
       Orientation::Portrait,
       {.percent = 50, .topMargin = 720, .leftMargin = 1440},
       false},
      {"below a header", Orientation::Portrait, {.percent = 100, .topMargin = 720}, true},
      {"fitted and centred",
       Orientation::Portrait,
       {.percent = 100, .fitsPage = true, .centered = true},
       false},
      {"beyond the paper", Orientation::Landscape, {.percent = 100, .leftMargin = 12000}, false},
      {"landscape in the corner", Orientation::Landscape, {.percent = 100}, false},
      {"landscape, fitted, with a header",
       Orientation::Landscape,
       {.percent = 100, .fitsPage = true, .topMargin = 720},
       true},
  };
  CaptureRed();
  for (const Case& test : kCases) {
    SCOPED_TRACE(test.what);
    printing.SetOrientation(test.orientation);
    const Printer printer = printing.Current().value();
    EXPECT_EQ(printer.orientation, test.orientation);
    EXPECT_EQ(printer.paperWidth > printer.paperHeight, test.orientation == Orientation::Landscape);
    const Placement place =
        PlaceImage(test.choices, 6000, 3000, printer.paperWidth, printer.paperHeight);
    PrintedPage page{
        {}, place.x.Value(), place.y.Value(), place.width.Value(), place.height.Value()};
    if (test.header) page.header = "Hx";
    printing.PrintToFile(page, file);

    const QList<QImage> pages = Rendered();
    ASSERT_EQ(pages.size(), 1);
    EXPECT_NEAR(pages[0].width(), printer.paperWidth / kTwipsPerPixel, 1);
    EXPECT_NEAR(pages[0].height(), printer.paperHeight / kTwipsPerPixel, 1);
    ExpectNear(Bounds(pages[0], IsRed),
               Scaled(place, 1.0 / kTwipsPerPixel) & QRectF(pages[0].rect()));
    const QRect letters = Bounds(pages[0], IsDark);
    if (test.header) {
      // The first line of the printable part, of which at least a tenth of an inch is kept free.
      EXPECT_GE(letters.left(), 14);
      EXPECT_GE(letters.top(), 14);
      EXPECT_GE(letters.height(), 10);
      EXPECT_LT(letters.bottom(), 720 / kTwipsPerPixel);
    } else {
      EXPECT_TRUE(letters.isEmpty());
    }
  }
}

TEST_F(PrintedPages, ThatCannotBeWrittenFail) {
  CaptureRed();
  const PrintedPage page{"x", 0, 0, 6000, 3000};
  for (const std::string& path :
       {std::string("/dev/full"), folder.File("none/page.pdf"), folder.Path()})
    EXPECT_THROW(printing.PrintToFile(page, path), RuntimeFailure) << path;
  folder.Write("page.pdf", "an old page, longer than nothing");
  printing.PrintToFile(page, file);
  EXPECT_EQ(folder.Read("page.pdf").substr(0, 5), "%PDF-");
}

TEST_F(PrintedPages, GoToAFileWhereThereIsNoPrinter) {
  const std::vector<std::string> names = printing.Names();
  EXPECT_EQ(std::count(names.begin(), names.end(), "Print to PDF"), 1);
  printing.Choose("Print to PDF");
  EXPECT_EQ(printing.Current().value().name, "Print to PDF");
  EXPECT_TRUE(printing.IsFile());
  printing.Choose("no such printer");
  EXPECT_TRUE(printing.Current().has_value());
}

// ---- The page dialog ----

class PageDialog : public PrintedPages {
 protected:
  PageDialog() { desktop.session.DataPath = folder.Path() + '/'; }

  void Print(const char* window) {
    desktop.Shows(window);
    desktop.session.Handle([&] { desktop.session.PrintWindow(*desktop.session.Find(window)); });
    Settle();
  }

  Desktop desktop{folder.Path()};
};

TEST_F(PageDialog, PreviewsWhatItPrints) {
  Print("FlowCalc");
  const Window& dialog = *desktop.session.Find("Page_Setup");
  EXPECT_EQ(desktop.Get<QComboBox>("Page_Setup", "Combo1").currentText(), "Print to PDF");
  EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());

  // The picture of the window in red, so that its place is seen.
  CaptureRed();
  auto& preview = desktop.Get<PictureWidget>("Page_Setup", "Picture1");
  const auto& fields = dialog;
  desktop.person.Types(dynamic_cast<FocusControl&>(*fields.Find("txt_left_margin")), "1.5");
  desktop.person.Types(dynamic_cast<FocusControl&>(*fields.Find("txt_top_margin")), "3");
  desktop.person.Clicks(*fields.Find("btn_apply"));
  Settle();
  const QImage seen = preview.grab().toImage();
  const Printer printer = desktop.platform.CurrentPrinter().value();
  const double scale =
      std::min(preview.width() / printer.paperWidth, preview.height() / printer.paperHeight);
  const Session& session = desktop.session;
  const Placement place =
      PlaceImage({.percent = 100, .topMargin = 4320, .leftMargin = 2160}, session.CaptureWidth,
                 session.CaptureHeight, printer.paperWidth, printer.paperHeight);
  const QPointF corner((preview.width() - printer.paperWidth * scale) / 2,
                       (preview.height() - printer.paperHeight * scale) / 2);
  const QRectF paper(corner, QSizeF(printer.paperWidth, printer.paperHeight) * scale);
  ExpectNear(Bounds(seen, IsRed), Scaled(place, scale).translated(corner) & paper);

  // The file is asked for, and the page is the same.
  QTimer::singleShot(0, [this] {
    auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    box->findChild<QLineEdit*>()->setText(ToQt(file));
    static_cast<QDialog*>(box)->accept();
  });
  desktop.person.Clicks(*fields.Find("btn_print"));
  Settle();
  EXPECT_EQ(desktop.session.Find("Page_Setup"), nullptr);
  const QList<QImage> pages = Rendered();
  ASSERT_EQ(pages.size(), 1);
  ExpectNear(Bounds(pages[0], IsRed),
             Scaled(place, 1.0 / kTwipsPerPixel) & QRectF(pages[0].rect()));
}

}  // namespace
}  // namespace korvane::testing
