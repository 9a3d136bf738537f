#include "toolkit/web_client.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <memory>

namespace korvane {
namespace {

constexpr qint64 kLongestText = 4096;  // bytes; a version number is a dozen

}  // namespace

QString GetText(const QString& address, int milliseconds) {
  QNetworkAccessManager manager;
  const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(QUrl(address))));
  QEventLoop loop;
  QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
  QTimer::singleShot(milliseconds, reply.get(), &QNetworkReply::abort);
  QObject::connect(reply.get(), &QNetworkReply::readyRead, reply.get(), [&reply] {
    if (reply->bytesAvailable() > kLongestText) reply->abort();
  });
  if (!reply->isFinished()) loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (reply->error() != QNetworkReply::NoError) return {};
  return QString::fromUtf8(reply->readAll());
}

}  // namespace korvane
