// What is taken from a real HTTPS host, however it answers, and whether what the project's own tool has
// signed is believed.
#include <QFile>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <map>

#include "platform/desktop/qt_feed_source.h"
#include "platform_qt/patience.h"
#include "updates/feed_signer.h"
#include "updates/feed_source_contract.h"
#include "updates/update_check.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

/// Far longer than a test may take: whatever ends sooner was ended by something else.
constexpr auto kNever = 1h;

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

/// A host on this machine with a certificate of its own, for its name alone. It answers well or badly, as the
/// first part of a path says: /manner/name is about the file of that name.
class HttpsHost {
 public:
  std::map<QByteArray, QByteArray> files{{"feed", "bytes"}};

  HttpsHost() {
    const QTemporaryDir folder;
    const QString key = folder.filePath("key"), certificate = folder.filePath("certificate");
    run("openssl",
        {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-subj",
         "/CN=localhost", "-addext", "subjectAltName=DNS:localhost", "-keyout", key, "-out", certificate});
    tls.setLocalCertificate(QSslCertificate(bytesOf(certificate)));
    tls.setPrivateKey(QSslKey(bytesOf(key), QSsl::Ec));
    tls.setCaCertificates({tls.localCertificate()});
    secure.setSslConfiguration(tls);
    listen(secure);
    listen(plain);
  }

  /// The beginning of an address.
  std::string address(const std::string& manner, const std::string& host = "localhost") const {
    return "https://" + host + ':' + std::to_string(secure.serverPort()) + '/' + manner + '/';
  }
  /// That of a host that is not secure, for the same files.
  std::string plainAddress() const {
    return "http://localhost:" + std::to_string(plain.serverPort()) + "/good/";
  }
  /// Trusts this host and no other.
  QtFeedSource::Options trust(std::chrono::milliseconds timeLimit = kNever) const { return {timeLimit, tls}; }

 private:
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
    const QList<QByteArray> path = client.readLine().split(' ').value(1).split('/');
    const QByteArray manner = path.value(1), name = path.value(2);
    if (manner == "silent") return;
    if (manner == "slow") return writeOnAndOn(client, " ", 10);
    if (manner == "endless") return writeOnAndOn(client, QByteArray(4096, ' '), 0);
    const auto file = files.find(name);
    const std::map<QByteArray, QByteArray> statuses{
        {"gone", "404 Not Found"},
        {"partial", "206 Partial Content"},
        {"moved", "302 Found\r\nLocation: /good/" + name},
        {"moved-again", "302 Found\r\nLocation: /moved-again/" + name},
        {"moved-to-http", ("302 Found\r\nLocation: " + plainAddress()).c_str() + name},
        {"moved-to-file", "302 Found\r\nLocation: file:///etc/passwd"}};
    const auto status = statuses.find(file == files.end() ? "gone" : manner);
    const QByteArray body = file == files.end() ? "" : file->second;
    client.write("HTTP/1.1 " + (status == statuses.end() ? "200 OK" : status->second));
    client.write("\r\nConnection: close\r\nContent-Length: ");
    client.write(QByteArray::number(body.size() + (manner == "truncated" ? 1 : 0)) + "\r\n\r\n" + body);
    client.disconnectFromHost();
  }

  /// Goes on until the client leaves.
  static void writeOnAndOn(QTcpSocket& client, const QByteArray& bytes, int milliseconds) {
    client.write("HTTP/1.1 200 OK\r\n\r\n");
    auto* timer = new QTimer(&client);
    QObject::connect(timer, &QTimer::timeout, &client, [&client, bytes] {
      if (client.bytesToWrite() == 0) client.write(bytes);
    });
    timer->start(milliseconds);
  }

  QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
  QSslServer secure;
  QTcpServer plain;
};

class FeedsOverHttps : public testing::Test {
 protected:
  static std::optional<std::string> fetched(const std::string& address, QtFeedSource::Options options) {
    QtFeedSource source(std::move(options));
    std::optional<std::string> answer;
    bool hasAnswer = false;
    source.fetch(address, 10'000, [&](auto got) {
      answer = std::move(got);
      hasAnswer = true;
    });
    waitFor([&] { return hasAnswer; });
    return answer;
  }

  static inline HttpsHost* host = nullptr;
  static void SetUpTestSuite() { host = new HttpsHost; }
  static void TearDownTestSuite() { delete host; }
};

TEST_F(FeedsOverHttps, KeepTheContractOfASource) {
  QtFeedSource source(host->trust());
  const auto serve = [](const std::string& name, const std::string& bytes) {
    host->files[name.c_str()] = QByteArray::fromStdString(bytes);
  };
  expectFeedSourceContract(source, {host->address("good"), host->plainAddress(), serve, waitFor});
}

TEST_F(FeedsOverHttps, AreTakenWhereTheHostAnswersWholeAndSecurely) {
  for (const char* manner : {"good", "moved"})
    EXPECT_EQ(fetched(host->address(manner) + "feed", host->trust()), "bytes") << manner;
  for (const char* manner :
       {"gone", "partial", "truncated", "endless", "moved-to-http", "moved-to-file", "moved-again"})
    EXPECT_EQ(fetched(host->address(manner) + "feed", host->trust()), std::nullopt) << manner;
  for (const char* manner : {"slow", "silent"})
    EXPECT_EQ(fetched(host->address(manner) + "feed", host->trust(200ms)), std::nullopt) << manner;
  EXPECT_EQ(fetched(host->address("good") + "feed", {kNever, {}}), std::nullopt) << "it is not trusted";
  EXPECT_EQ(fetched(host->address("good", "127.0.0.1") + "feed", host->trust()), std::nullopt);
}

TEST_F(FeedsOverHttps, AreDroppedWithTheSource) {
  auto source = std::make_unique<QtFeedSource>(host->trust());
  bool late = false;
  source->fetch(host->address("silent") + "feed", 100, [&](const auto&) { late = true; });
  source->fetch(host->plainAddress() + "feed", 100, [&](const auto&) { late = true; });
  source.reset();
  EXPECT_EQ(fetched(host->address("good") + "feed", host->trust()), "bytes");
  EXPECT_FALSE(late);
}

TEST(SignedFeeds, AreBelievedFromTheProjectsOwnTool) {
  constexpr auto kTool = BRIMLE_SOURCE_DIR "/scripts/sign_feed";
  const QTemporaryDir folder;
  const QString key = folder.filePath("key"), feed = folder.filePath("feed");
  run("openssl", {"genpkey", "-algorithm", "ed25519", "-out", key});
  QFile file(feed);
  ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(feedOf("1.2.0").c_str()) > 0 && file.flush());
  run(kTool, {key, feed});
  const std::string publicKey = run(kTool, {"--public", key}).trimmed().toStdString();
  const BuildSettings settings{{{1, 1, 0}}, "", publicKey, false, ""};
  EXPECT_EQ(judge(bytesOf(feed).toStdString(), bytesOf(feed + ".sig").toStdString(), settings).result,
            CheckResult::newVersion);
}

}  // namespace
}  // namespace brimle
