#include "updates_qt/https_host.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QTcpSocket>
#include <QTimer>
#include <map>

#include "platform_qt/patience.h"

namespace brimle {
namespace {

constexpr auto kSignFeed = BRIMLE_SOURCE_DIR "/scripts/sign_feed";

/// What a command prints.
QByteArray run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(kPatience) || process.exitCode() != 0)
    qFatal("%s failed: %s", qPrintable(program), process.readAllStandardError().constData());
  return process.readAllStandardOutput();
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Goes on until the client leaves.
void writeOnAndOn(QTcpSocket& client, const QByteArray& bytes, int milliseconds) {
  auto* timer = new QTimer(&client);
  QObject::connect(timer, &QTimer::timeout, &client, [&client, bytes] {
    if (client.bytesToWrite() == 0) client.write(bytes);
  });
  timer->start(milliseconds);
}

}  // namespace

HttpsHost::HttpsHost() {
  run("openssl", {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                  "-days", "2", "-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost",
                  "-keyout", path("tls.key"), "-out", path("tls.pem")});
  run("openssl", {"genpkey", "-algorithm", "ed25519", "-out", path("feed.key")});
  QSslConfiguration identity = QSslConfiguration::defaultConfiguration();
  identity.setLocalCertificate(QSslCertificate(bytesOf(path("tls.pem"))));
  identity.setPrivateKey(QSslKey(bytesOf(path("tls.key")), QSsl::Ec));
  secure_.setSslConfiguration(identity);
  listen(secure_);
  listen(plain_);
}

void HttpsHost::listen(QTcpServer& server) {
  QObject::connect(&server, &QTcpServer::pendingConnectionAvailable, &server, [this, &server] {
    QTcpSocket* client = server.nextPendingConnection();
    QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    QObject::connect(client, &QTcpSocket::readyRead, &server, [this, client] {
      if (!client->canReadLine()) return;
      client->disconnect(SIGNAL(readyRead()));
      answer(*client);
    });
  });
  if (!server.listen(QHostAddress::LocalHost)) qFatal("the host does not start");
}

void HttpsHost::answer(QTcpSocket& client) const {
  const QList<QByteArray> parts = client.readLine().split(' ').value(1).split('/');  // "", manner, name
  const QByteArray manner = parts.value(1), name = parts.value(2);
  if (manner == "silent") return;
  if (manner == "slow" || manner == "endless") {
    client.write("HTTP/1.1 200 OK\r\n\r\n");
    return manner == "slow" ? writeOnAndOn(client, " ", 10) : writeOnAndOn(client, QByteArray(4096, ' '), 0);
  }
  const QString file = path(name.toStdString());
  const std::map<QByteArray, QByteArray> places{{"moved", "/good/" + name},
                                                {"moved-again", "/moved-again/" + name},
                                                {"moved-to-http", plainAddress().c_str() + name},
                                                {"moved-to-file", "file://" + file.toUtf8()}};
  QByteArray status = QFile::exists(file) ? "200 OK" : "404 Not Found";
  if (manner == "gone") status = "404 Not Found";
  if (manner == "partial") status = "206 Partial Content";
  const auto place = places.find(manner);
  if (place != places.end()) status = "302 Found\r\nLocation: " + place->second;
  const QByteArray body = bytesOf(file);
  const auto length = QByteArray::number(body.size() + (manner == "truncated" ? 1 : 0));
  client.write("HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " + length + "\r\n\r\n" +
               body);
  client.disconnectFromHost();
}

std::string HttpsHost::address(const std::string& manner, const std::string& host) const {
  return "https://" + host + ':' + std::to_string(secure_.serverPort()) + '/' + manner + '/';
}

std::string HttpsHost::plainAddress() const {
  return "http://localhost:" + std::to_string(plain_.serverPort()) + "/good/";
}

QSslConfiguration HttpsHost::trust() const {
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setCaCertificates({QSslCertificate(bytesOf(path("tls.pem")))});
  return configuration;
}

void HttpsHost::serve(const std::string& name, const std::string& bytes) const {
  QFile file(path(name));
  if (!file.open(QFile::WriteOnly) || file.write(QByteArray::fromStdString(bytes)) < 0)
    qFatal("cannot write a file");
}

void HttpsHost::publish(const std::string& name, const std::string& bytes) const {
  serve(name, bytes);
  run(kSignFeed, {path("feed.key"), path(name)});
}

std::string HttpsHost::publicKey() const {
  return run(kSignFeed, {"--public", path("feed.key")}).trimmed().toStdString();
}

}  // namespace brimle
