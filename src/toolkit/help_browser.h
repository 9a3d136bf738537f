// Shows the pages of one folder, and nothing else.
#pragma once

#include <QString>
#include <QTextBrowser>

namespace korvane {

class HelpBrowser final : public QTextBrowser {
 public:
  explicit HelpBrowser(QWidget* parent);

  /// Its "style.css" is for all of its pages.
  void SetFolder(const QString& folder);
  /// A path, in the folder if it is no full one, or a URL; either may end in a place on the page,
  /// "page.html#place".
  void Show(const QString& address);
  /// The address of a link on the page that is shown.
  QString AddressOf(const QUrl& link) const;

 protected:
  /// Pages and pictures of the folder. In a page's place that is not there, or not in the folder,
  /// stands one that says so.
  QVariant loadResource(int type, const QUrl& name) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QUrl UrlOf(const QString& address) const;
  bool IsInFolder(const QString& path) const;
  QUrl Suited(const QUrl& picture) const;
  void Print();

  QString folder_;
};

}  // namespace korvane
