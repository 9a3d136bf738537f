#include "toolkit/printing.h"

#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "toolkit/capture.h"
#include "toolkit/text.h"
#include "toolkit/twips.h"

namespace korvane {
namespace {

constexpr const char* kPdf = "Print to PDF";
constexpr double kTwipsPerPoint = 20;

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
  return Printer{device.outputFormat() == QPrinter::PdfFormat ? kPdf : FromQt(device.printerName()),
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

void Printing::Print(const PrintedPage& page, QWidget* parent) {
  QPrinter& device = Device();
  if (device.outputFormat() == QPrinter::PdfFormat) {
    const QString file =
        QFileDialog::getSaveFileName(parent, "Print to PDF", "korvane.pdf", "PDF files (*.pdf)");
    if (file.isEmpty()) return;
    device.setOutputFileName(file);
  }
  device.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&device)) failures::PrinterError();
  const double scale = device.resolution() / kTwipsPerInch;
  if (page.header) {
    const QRectF printable = device.pageLayout().paintRectPixels(device.resolution());
    painter.drawText(printable.topLeft() + QPointF(0, painter.fontMetrics().ascent()),
                     ToQt(*page.header));
  }
  painter.drawImage(QRectF(page.x * scale, page.y * scale, page.width * scale, page.height * scale),
                    capture::Last());
  if (!painter.end()) failures::PrinterError();
}

}  // namespace korvane
