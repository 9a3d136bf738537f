#include "toolkit/help_browser.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <memory>

#include "toolkit/contrast.h"

namespace korvane {

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);  // the window decides what a link opens
  setOpenExternalLinks(false);
  document()->setDocumentMargin(12);
}

// The toolkit passes over links to style sheets that don't tell their type.
void HelpBrowser::SetFolder(const QString& folder) {
  if (folder == folder_) return;
  folder_ = folder;
  QFile style(QDir(folder_).filePath("style.css"));
  if (style.open(QIODevice::ReadOnly)) document()->setDefaultStyleSheet(style.readAll());
}

void HelpBrowser::Show(const QString& address) {
  const QUrl url = UrlOf(address);
  if (source() == url)
    reload();
  else
    setSource(url, QTextDocument::HtmlResource);
  clearHistory();  // the window keeps the history, and no key is to go round it
}

QUrl HelpBrowser::UrlOf(const QString& address) const {
  const qsizetype mark = address.indexOf('#', address.lastIndexOf('/') + 1);
  const QString page = address.left(mark);
  QUrl url = QUrl::fromUserInput(page, folder_, QUrl::AssumeLocalFile);
  if (!url.isValid()) url = QUrl::fromLocalFile(QDir(folder_).filePath(page));
  if (mark >= 0) url.setFragment(address.mid(mark + 1));
  return url;
}

QString HelpBrowser::AddressOf(const QUrl& link) const {
  const QUrl url = source().resolved(link);
  if (!url.isLocalFile()) return url.toString();
  return url.toLocalFile() + (url.hasFragment() ? '#' + url.fragment() : QString());
}

bool HelpBrowser::IsInFolder(const QString& path) const {
  const QString folder = QFileInfo(folder_).canonicalFilePath();
  const QString file = QFileInfo(path).canonicalFilePath();
  return !folder.isEmpty() && file.startsWith(folder + '/') && QFileInfo(file).isFile();
}

/// On a dark ground the picture of the same name in the folder "dark" beside it, if there is one.
QUrl HelpBrowser::Suited(const QUrl& picture) const {
  if (!IsDark(palette().color(QPalette::Base))) return picture;
  const QUrl dark = picture.resolved(QUrl("dark/" + picture.fileName()));
  return IsInFolder(dark.toLocalFile()) ? dark : picture;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  const QUrl url = source().resolved(name);
  if (url.isLocalFile() && IsInFolder(url.toLocalFile()))
    return QTextBrowser::loadResource(type,
                                      type == QTextDocument::ImageResource ? Suited(url) : url);
  if (type != QTextDocument::HtmlResource) return {};
  return QString(
             "<h1>There is no such page</h1><p>The help folder has no page <b>%1</b>.</p>"
             "<p><a href=\"%2\">Contents</a></p>")
      .arg(url.isLocalFile() ? url.toLocalFile().toHtmlEscaped() : url.toString().toHtmlEscaped(),
           QUrl::fromLocalFile(QDir(folder_).filePath("contents.html")).toString());
}

void HelpBrowser::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
  menu->addSeparator();
  connect(menu->addAction(tr("Print...")), &QAction::triggered, this, &HelpBrowser::Print);
  menu->exec(event->globalPos());
}

void HelpBrowser::Print() {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) print(&printer);
}

}  // namespace korvane
