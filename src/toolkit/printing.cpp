#include "toolkit/printing.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "frame/files.h"
#include "toolkit/capture.h"
#include "toolkit/text.h"
#include "toolkit/twips.h"

namespace korvane {
namespace {

constexpr const char* kPdf = "Print to PDF";
constexpr double kTwipsPerPoint = 20;

/// Paints the page from the corner of the paper.
void Paint(const PrintedPage& page, QPagedPaintDevice& device) {
  QPainter painter;
  if (!painter.begin(&device)) failures::PrinterError();
  const int resolution = device.logicalDpiX();
  const double scale = resolution / kTwipsPerInch;
  if (page.header) {
    const QMargins margins = device.pageLayout().marginsPixels(resolution);
    painter.drawText(margins.left(), margins.top() + painter.fontMetrics().ascent(),
                     ToQt(*page.header));
  }
  painter.drawImage(QRectF(page.x * scale, page.y * scale, page.width * scale, page.height * scale),
                    capture::Last());
  if (!painter.end()) failures::PrinterError();
}

}  // namespace

Printing::Printing() = default;
Printing::~Printing() = default;

QPrinter& Printing::Device() {
  if (!device_) {
    device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (QPrinterInfo::defaultPrinterName().isEmpty()) device_->setOutputFormat(QPrinter::PdfFormat);
  }
  return *device_;
}

std::vector<std::string> Printing::Names() const {
  std::vector<std::string> names;
  for (const QString& name : QPrinterInfo::availablePrinterNames()) names.push_back(FromQt(name));
  names.emplace_back(kPdf);
  return names;
}

std::optional<Printer> Printing::Current() {
  const QPrinter& device = Device();
  const QPageLayout layout = device.pageLayout();
  if (!layout.isValid()) return std::nullopt;
  const QSizeF paper = layout.fullRect(QPageLayout::Point).size() * kTwipsPerPoint;
  return Printer{IsFile() ? kPdf : FromQt(device.printerName()),
                 layout.orientation() == QPageLayout::Landscape ? Orientation::Landscape
                                                                : Orientation::Portrait,
                 paper.width(), paper.height()};
}

void Printing::Choose(const std::string& name) {
  QPrinter& device = Device();
  if (name == kPdf)
    device.setOutputFormat(QPrinter::PdfFormat);
  else
    device.setPrinterName(ToQt(name));
}

void Printing::SetOrientation(Orientation orientation) {
  Device().setPageOrientation(orientation == Orientation::Landscape ? QPageLayout::Landscape
                                                                    : QPageLayout::Portrait);
}

void Printing::SetUp(const std::string& title, QWidget* parent) {
  QPrintDialog dialog(&Device(), parent);
  dialog.setWindowTitle(ToQt(title));
  dialog.exec();
}

bool Printing::IsFile() { return Device().outputFormat() == QPrinter::PdfFormat; }

void Printing::Print(const PrintedPage& page) {
  Device().setFullPage(true);
  Paint(page, Device());
}

void Printing::PrintToFile(const PrintedPage& page, const std::string& path) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter writer(&file);
  writer.setCreator(kProgramName);
  QPageLayout layout = Device().pageLayout();
  layout.setMode(QPageLayout::FullPageMode);
  writer.setPageLayout(layout);
  Paint(page, writer);
  WriteFile(path, file.data().toStdString());
}

}  // namespace korvane
