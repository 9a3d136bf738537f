// What a text file from a web server comes to, over servers that behave and servers that don't.
#include "toolkit/web_client.h"

#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <functional>

namespace korvane {
namespace {

/// A server on this machine that treats every request as told.
class Server : public QTcpServer {
 public:
  using Treatment = std::function<void(QTcpSocket&)>;

  explicit Server(Treatment treatment) : treatment_(std::move(treatment)) {
    EXPECT_TRUE(listen(QHostAddress::LocalHost));
    connect(this, &QTcpServer::newConnection, this, [this] {
      QTcpSocket* socket = nextPendingConnection();
      connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
        socket->readAll();
        treatment_(*socket);
      });
    });
  }

  QString Address() const { return QString("http://127.0.0.1:%1/version.txt").arg(serverPort()); }

 private:
  Treatment treatment_;
};

/// Sends the bytes and hangs up.
Server::Treatment Answers(const QByteArray& bytes) {
  return [bytes](QTcpSocket& socket) {
    socket.write(bytes);
    socket.disconnectFromHost();
  };
}

QByteArray Ok(const QByteArray& body) {
  return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
         body;
}

TEST(WebClient, BringsTheBodyOrNothing) {
  struct Case {
    const char* what;
    QByteArray answer;
    QString text;
  };
  const Case kCases[] = {
      {"a version", Ok("2.0.5"), "2.0.5"},
      {"its line end comes through", Ok("2.0.5\r\n"), "2.0.5\r\n"},
      {"letters", Ok("2.0.5 \xC3\xA9"), u"2.0.5 \u00E9"_qs},
      {"no length told", "HTTP/1.0 200 OK\r\n\r\n2.0.6", "2.0.6"},
      {"pieces",
       "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\n2.0\r\n2\r\n.7\r\n0\r\n\r\n",
       "2.0.7"},
      {"an empty body", Ok(""), ""},
      {"not found", "HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\n\r\nnot there", ""},
      {"too long for a version", Ok(QByteArray(5000, '2')), ""},
      {"a server's failure", "HTTP/1.1 500 Oops\r\nContent-Length: 4\r\n\r\noops", ""},
      {"a body that breaks off", "HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\n2.0.5", ""},
      {"a head that breaks off", "HTTP/1.1 200", ""},
      {"no HTTP", "2.0.5\n", ""},
      {"nothing at all", "", ""},
  };
  for (const Case& test : kCases) {
    const Server server(Answers(test.answer));
    EXPECT_EQ(GetText(server.Address(), 5000), test.text) << test.what;
  }
}

TEST(WebClient, FollowsAMovedFile) {
  const Server there(Answers(Ok("2.0.8")));
  const Server here(Answers("HTTP/1.1 302 Found\r\nLocation: " + there.Address().toUtf8() +
                            "\r\nContent-Length: 0\r\n\r\n"));
  EXPECT_EQ(GetText(here.Address(), 5000), "2.0.8");
}

TEST(WebClient, BringsNothingWithoutAServer) {
  const quint16 closed = Server(Answers("")).serverPort();
  EXPECT_EQ(GetText(QString("http://127.0.0.1:%1/").arg(closed), 5000), "");
  for (const char* address :
       {"", "no address", "http://", "http://127.0.0.1:99999/", "://x", "nope:x"})
    EXPECT_EQ(GetText(address, 5000), "") << address;
}

// A wait that does not end would run into the time-out of the test.
TEST(WebClient, GivesUpOnAServerThatDoesNotAnswer) {
  const Server silent([](QTcpSocket&) {});
  EXPECT_EQ(GetText(silent.Address(), 50), "");
  // Nor is it enough that something comes now and then.
  const Server drips([](QTcpSocket& socket) {
    socket.write("HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\n2");
    auto* clock = new QTimer(&socket);
    QObject::connect(clock, &QTimer::timeout, &socket, [&socket] { socket.write("0"); });
    clock->start(5);
  });
  EXPECT_EQ(GetText(drips.Address(), 100), "");
}

// A file far too long for a version is not waited for: it would never end.
TEST(WebClient, StopsReadingWhatIsNoVersion) {
  qint64 sent = 0;
  const Server endless([&sent](QTcpSocket& socket) {
    socket.write("HTTP/1.1 200 OK\r\n\r\n");
    const auto more = [&socket, &sent] {
      if (socket.bytesToWrite() > 0) return;
      sent += socket.write(QByteArray(100'000, 'x'));
    };
    QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, more);
    more();
  });
  EXPECT_EQ(GetText(endless.Address(), 5000), "");
  EXPECT_LT(sent, 50'000'000);
}

}  // namespace
}  // namespace korvane
