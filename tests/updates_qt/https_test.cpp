// What a user is told of an update feed on a real host, however that host answers.
#include "platform/desktop/qt_feed_source.h"

#include <QFile>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <map>

#include "platform/simulated/simulated_update_windows.h"
#include "platform_qt/patience.h"
#include "updates/feed_signer.h"
#include "updates/feed_source_contract.h"
#include "updates/feed_update_controller.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

constexpr Version kRunning{{1, 1, 0}};
/// Far longer than a test may take: whatever ends sooner was ended by something else.
constexpr auto kNever = 1h;

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

/// A real HTTPS host on this machine with a certificate of its own, that answers well or badly, and a
/// maintainer who publishes feeds there, signed by the project's own tool.
class HttpsHost {
 public:
  HttpsHost() {
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

  /// The beginning of an address for a manner of answering. The host's certificate is for its name alone.
  std::string address(const std::string& manner, const std::string& host = "localhost") const {
    return "https://" + host + ':' + std::to_string(secure_.serverPort()) + '/' + manner + '/';
  }

  /// That of a host that is not secure, for the same files.
  std::string plainAddress() const {
    return "http://localhost:" + std::to_string(plain_.serverPort()) + "/good/";
  }

  /// Trusts this host's certificate and no other.
  QSslConfiguration trust() const {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates({QSslCertificate(bytesOf(path("tls.pem")))});
    return configuration;
  }

  void serve(const std::string& name, const std::string& bytes) const {
    QFile file(path(name));
    if (!file.open(QFile::WriteOnly) || file.write(QByteArray::fromStdString(bytes)) < 0)
      qFatal("cannot write a file");
  }

  void publish(const std::string& name, const std::string& bytes) const {
    serve(name, bytes);
    run(kSignFeed, {path("feed.key"), path(name)});
  }

  std::string publicKey() const {
    return run(kSignFeed, {"--public", path("feed.key")}).trimmed().toStdString();
  }

 private:
  QString path(const std::string& name) const { return folder_.filePath(QString::fromStdString(name)); }

  void listen(QTcpServer& server) {
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

  void answer(QTcpSocket& client) const {
    const QList<QByteArray> parts = client.readLine().split(' ').value(1).split('/');  // "", manner, name
    const QByteArray manner = parts.value(1), name = parts.value(2);
    if (manner == "silent") return;
    if (manner == "slow" || manner == "endless") {
      client.write("HTTP/1.1 200 OK\r\n\r\n");
      return manner == "slow" ? writeOnAndOn(client, " ", 10)
                              : writeOnAndOn(client, QByteArray(4096, ' '), 0);
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

  QTemporaryDir folder_;
  QSslServer secure_;
  QTcpServer plain_;
};

class UpdatesOverHttps : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    host = std::make_unique<HttpsHost>();
    host->publish("new.json", feedOf("1.2.0"));
    host->publish("old.json", feedOf("1.0.0"));
    host->publish("forged.json", feedOf("1.2.0"));
    host->serve("forged.json", feedOf("6.6.6"));
  }
  static void TearDownTestSuite() { host.reset(); }

  /// Whether this is what a user is told of the feed at an address.
  static void expectTold(CheckResult result, const std::string& address, QtFeedSource::Options options) {
    QtFeedSource source(std::move(options));
    SimulatedUpdateWindows windows;
    FeedUpdateController updates({kRunning, address, host->publicKey(), false, ""}, source, windows);
    updates.checkForUpdates();
    waitFor([&] { return windows.open; });
    const bool isNew = result == CheckResult::newVersion;
    const auto told = messageFor({result, isNew ? parseFeed(feedOf("1.2.0")) : std::nullopt}, kRunning);
    EXPECT_EQ(windows.shown, std::vector{told}) << address;
  }

  static inline std::unique_ptr<HttpsHost> host;
};

TEST_F(UpdatesOverHttps, KeepTheContractOfASource) {
  QtFeedSource source({kNever, host->trust()});
  const auto serve = [](const std::string& name, const std::string& bytes) { host->serve(name, bytes); };
  expectFeedSourceContract(source, {host->address("good"), host->plainAddress(), serve, waitFor});
}

TEST_F(UpdatesOverHttps, AreToldByWhatTheHostAnswers) {
  expectTold(CheckResult::newVersion, host->address("good") + "new.json", {kNever, host->trust()});
  expectTold(CheckResult::newVersion, host->address("moved") + "new.json", {kNever, host->trust()});
  expectTold(CheckResult::upToDate, host->address("good") + "old.json", {kNever, host->trust()});
  expectTold(CheckResult::notSigned, host->address("good") + "forged.json", {kNever, host->trust()});
  for (const char* manner :
       {"gone", "partial", "truncated", "endless", "moved-to-http", "moved-to-file", "moved-again"})
    expectTold(CheckResult::notLoaded, host->address(manner) + "new.json", {kNever, host->trust()});
}

TEST_F(UpdatesOverHttps, AreNotWaitedForBeyondTheTimeLimit) {
  for (const char* manner : {"slow", "silent"})
    expectTold(CheckResult::notLoaded, host->address(manner) + "new.json", {200ms, host->trust()});
}

TEST_F(UpdatesOverHttps, AreNotTakenFromAHostThatIsNotTrusted) {
  expectTold(CheckResult::notLoaded, host->address("good") + "new.json", {kNever, {}});
  expectTold(CheckResult::notLoaded, host->address("good", "127.0.0.1") + "new.json",
             {kNever, host->trust()});
}

TEST_F(UpdatesOverHttps, AreDroppedWithTheSource) {
  auto source = std::make_unique<QtFeedSource>(QtFeedSource::Options{kNever, host->trust()});
  bool late = false, next = false;
  source->fetch(host->address("silent") + "new.json", 100, [&](const auto&) { late = true; });
  source->fetch(host->plainAddress() + "new.json", 100, [&](const auto&) { late = true; });
  source = std::make_unique<QtFeedSource>(QtFeedSource::Options{kNever, host->trust()});
  source->fetch(host->address("good") + "new.json", 1000, [&](const auto&) { next = true; });
  waitFor([&] { return next; });
  EXPECT_FALSE(late);
}

}  // namespace
}  // namespace brimle
