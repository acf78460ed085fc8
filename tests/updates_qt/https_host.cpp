#include "updates_qt/https_host.h"

#include <QFile>
#include <QSslCertificate>

namespace brimle {
namespace {

constexpr int kPatience = 60'000;  // milliseconds; only a broken machine needs them

/// What a command prints.
QByteArray run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(kPatience) || process.exitCode() != 0) {
    qFatal("%s failed: %s", qPrintable(program), process.readAllStandardError().constData());
  }
  return process.readAllStandardOutput();
}

}  // namespace

HttpsHost::HttpsHost() {
  run("openssl", {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                  "-days", "2", "-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost",
                  "-keyout", path("tls.key"), "-out", path("tls.pem")});
  run("openssl", {"genpkey", "-algorithm", "ed25519", "-out", path("feed.key")});
  server_.start(BRIMLE_SOURCE_DIR "/tests/updates_qt/feed_server.py",
                {path("tls.pem"), path("tls.key"), folder_.path()});
  if (!server_.waitForReadyRead(kPatience)) qFatal("the HTTPS host does not start");
  const QList<QByteArray> ports = server_.readLine().trimmed().split(' ');
  port_ = ports.value(0).toStdString();
  plainPort_ = ports.value(1).toStdString();
}

HttpsHost::~HttpsHost() {
  server_.closeWriteChannel();
  server_.waitForFinished(kPatience);
}

std::string HttpsHost::address(const std::string& manner) const {
  return "https://localhost:" + port_ + '/' + manner + '/';
}

std::string HttpsHost::addressByNumber() const {
  return "https://127.0.0.1:" + port_ + "/good/";
}

std::string HttpsHost::plainAddress() const {
  return "http://localhost:" + plainPort_ + "/good/";
}

QSslConfiguration HttpsHost::trust() const {
  QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
  configuration.setCaCertificates(QSslCertificate::fromPath(path("tls.pem")));
  return configuration;
}

void HttpsHost::serve(const std::string& name, const std::string& bytes) const {
  QFile file(path(name));
  if (!file.open(QFile::WriteOnly) || file.write(QByteArray::fromStdString(bytes)) < 0)
    qFatal("cannot write a file");
}

void HttpsHost::publish(const std::string& name, const std::string& bytes) const {
  serve(name, bytes);
  run(BRIMLE_SOURCE_DIR "/scripts/sign_feed", {path("feed.key"), path(name)});
}

std::string HttpsHost::publicKey() const {
  return run(BRIMLE_SOURCE_DIR "/scripts/sign_feed", {"--public", path("feed.key")}).trimmed().toStdString();
}

QString HttpsHost::path(const std::string& name) const {
  return folder_.filePath(QString::fromStdString(name));
}

}  // namespace brimle
