#include "toolkit/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QUrl>
#include <cstdlib>

#include "toolkit/capture.h"
#include "toolkit/grid_view.h"
#include "toolkit/text.h"
#include "toolkit/twips.h"
#include "toolkit/web_client.h"

namespace korvane {
namespace {

constexpr const char* kCalculator = "Calc.exe";  // what the menu calls the system's calculator

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::None: return QMessageBox::NoIcon;
    case Icon::Information: return QMessageBox::Information;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Question: return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

/// "Data files (*.dta)|*.dta|All Files (*.*)|*.*" in the toolkit's form. A pattern "*.*" means all
/// files here too, those without an extension included.
QStringList FiltersOf(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString description = parts[i].section('(', 0, 0).trimmed();
    const QString pattern = parts[i + 1] == "*.*" ? "*" : parts[i + 1];
    filters << description + " (" + pattern + ")";
  }
  return filters;
}

}  // namespace

QtPlatform::~QtPlatform() {
  for (const auto& [window, view] : views_) delete view;
}

WindowView* QtPlatform::View(const Window& window) const {
  const auto view = views_.find(&window);
  return view == views_.end() ? nullptr : view->second;
}

QWidget* QtPlatform::Front() const {
  const Window* active = session_->Active();
  return active != nullptr ? View(*active) : nullptr;
}

// ---- Windows ----

void QtPlatform::WindowShown(Window& window, bool) {
  WindowView*& view = views_[&window];
  if (view == nullptr) view = new WindowView(window, *session_);
  // Help that a modal window opens stands above it, rather than behind it where nobody can use it.
  if (session_->Modal() != nullptr) view->setWindowModality(Qt::ApplicationModal);
  view->show();
  view->ReportGeometry();
}

void QtPlatform::WindowHidden(Window& window) {
  if (WindowView* view = View(window)) view->hide();
  LeaveModal(window);
}

void QtPlatform::WindowUnloaded(Window& window) {
  if (WindowView* view = View(window)) view->Detach();
  views_.erase(&window);
  LeaveModal(window);
}

void QtPlatform::WindowActivated(Window& window) {
  if (WindowView* view = View(window)) view->ComeToFront();
}

void QtPlatform::Refresh(Window& window, const std::vector<Control*>& changed, bool windowChanged) {
  if (WindowView* view = View(window)) view->Refresh(changed, windowChanged);
}

void QtPlatform::RunModal(Window& window) {
  if (!window.IsShown()) return;
  QEventLoop loop;
  modalLoops_[&window] = &loop;
  loop.exec();
}

void QtPlatform::LeaveModal(const Window& window) {
  const auto loop = modalLoops_.find(&window);
  if (loop == modalLoops_.end()) return;
  loop->second->quit();
  modalLoops_.erase(loop);
}

void QtPlatform::RunPendingMessages() { QCoreApplication::processEvents(); }

void QtPlatform::SetHourglass(bool on) {
  if (on)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

// ---- Boxes and dialogs ----

void QtPlatform::Show(const Message& message) {
  QMessageBox box(IconOf(message.icon), ToQt(message.title),
                  ToQt(message.text).replace("\r\n", "\n").replace('\r', '\n'), QMessageBox::Ok,
                  Front());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

Answer QtPlatform::Ask(const Question& question) {
  QMessageBox box(QMessageBox::Question, ToQt(question.title), ToQt(question.text),
                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, Front());
  box.setTextFormat(Qt::PlainText);
  switch (box.exec()) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return Answer::Cancel;
  }
}

std::optional<std::string> QtPlatform::ChooseFile(const FileDialog& dialog) {
  const bool open = dialog.action == FileDialog::Action::Open;
  QFileDialog box(Front(), ToQt(dialog.title), ToQt(dialog.folder));
  box.setNameFilters(FiltersOf(dialog.filter));
  box.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  box.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  box.selectFile(ToQt(dialog.fileName));
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  return FromQt(box.selectedFiles().constFirst());
}

std::optional<std::string> QtPlatform::ChooseFolder(const std::string& title) {
  const QString folder =
      QFileDialog::getExistingDirectory(Front(), ToQt(title), ToQt(session_->DataPath));
  if (folder.isEmpty()) return std::nullopt;
  return FromQt(folder);
}

// ---- Printing ----

void QtPlatform::Capture(Window& window) {
  WindowView* view = View(window);
  if (view == nullptr) return;
  capture::Take(*view);
  QGuiApplication::clipboard()->setImage(capture::Last());
}

std::vector<std::string> QtPlatform::PrinterNames() { return printing_.Names(); }

std::optional<Printer> QtPlatform::CurrentPrinter() { return printing_.Current(); }

void QtPlatform::ChoosePrinter(const std::string& name) { printing_.Choose(name); }

void QtPlatform::SetOrientation(Orientation orientation) { printing_.SetOrientation(orientation); }

void QtPlatform::SetUpPrinter(const std::string& title) { printing_.SetUp(title, Front()); }

void QtPlatform::Print(const PrintedPage& page) {
  if (!printing_.IsFile()) {
    printing_.Print(page);
    return;
  }
  // No file, no page.
  if (const auto path = ChooseFile(
          {FileDialog::Action::Save, "Print to PDF", "korvane.pdf", "", "PDF files (*.pdf)|*.pdf"}))
    printing_.PrintToFile(page, *path);
}

// ---- Services ----

Metrics QtPlatform::GetMetrics() {
  const QWidget* front = Front();
  const QWidget probe;
  const QWidget& window = front != nullptr ? *front : probe;
  const QSize screen = window.screen()->availableGeometry().size();
  const QSize frame = window.frameGeometry().size() - window.size();
  const auto twips = [&window](int pixels) { return TwipsOf(window, pixels); };
  return {.screenWidth = twips(screen.width()),
          .screenHeight = twips(screen.height()),
          .frameWidth = twips(frame.width()) / 2,
          .captionHeight = twips(frame.height()),
          .gridRowHeight = twips(GridRowPixels())};
}

std::string QtPlatform::Get(const std::string& address) { return FromQt(GetText(ToQt(address))); }

void QtPlatform::Beep() { QApplication::beep(); }

void QtPlatform::SetClipboard(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
}

void QtPlatform::Launch(const std::string& what) {
  if (what == kCalculator) {
    for (const char* program :
         {"gnome-calculator", "kcalc", "qalculate-gtk", "mate-calc", "galculator", "xcalc"})
      if (QProcess::startDetached(program, {})) return;
    return;
  }
  QDesktopServices::openUrl(QUrl::fromUserInput(ToQt(what)));
}

std::optional<std::string> QtPlatform::Setting(const std::string& key) {
  return settings_.Get(key);
}

void QtPlatform::SaveSetting(const std::string& key, const std::string& value) {
  settings_.Set(key, value);
}

// ---- Ends ----

void QtPlatform::Fail(const RuntimeFailure& failure) {
  while (QGuiApplication::overrideCursor() != nullptr) SetHourglass(false);
  QMessageBox::critical(
      Front(), kProgramName,
      QString("Run-time error '%1':\n\n%2").arg(failure.Number()).arg(ToQt(failure.Text())));
  EndProgram(EXIT_FAILURE);
}

void QtPlatform::EndProgram(int status) {
  for (const auto& [window, view] : views_) view->hide();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  std::exit(status);
}

void QtPlatform::LastWindowClosed() { QCoreApplication::quit(); }

}  // namespace korvane
