#include "toolkit/web_client.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <memory>

namespace korvane {

QString GetText(const QString& address, int milliseconds) {
  QNetworkAccessManager manager;
  const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(QUrl(address))));
  QEventLoop loop;
  QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
  QTimer::singleShot(milliseconds, reply.get(), &QNetworkReply::abort);
  if (!reply->isFinished()) loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (reply->error() != QNetworkReply::NoError) return {};
  constexpr qint64 longest = 4096;  // bytes; a version number is a dozen
  return QString::fromUtf8(reply->read(longest));
}

}  // namespace korvane
