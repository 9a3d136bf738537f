#include "toolkit/help_browser.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <memory>

namespace korvane {

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);  // the window decides what a link opens
  setOpenExternalLinks(false);
}

void HelpBrowser::Show(const QString& address) {
  const QUrl url = QUrl::fromUserInput(address, folder_, QUrl::AssumeLocalFile);
  if (source() == url)
    reload();
  else
    setSource(url, QTextDocument::HtmlResource);
}

bool HelpBrowser::IsInFolder(const QString& path) const {
  const QString folder = QFileInfo(folder_).canonicalFilePath();
  const QString file = QFileInfo(path).canonicalFilePath();
  return !folder.isEmpty() && file.startsWith(folder + '/') && QFileInfo(file).isFile();
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  const QUrl url = source().resolved(name);
  if (url.isLocalFile() && IsInFolder(url.toLocalFile()))
    return QTextBrowser::loadResource(type, url);
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
