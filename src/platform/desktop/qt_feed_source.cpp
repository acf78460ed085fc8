#include "platform/desktop/qt_feed_source.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace brimle {
namespace {

constexpr int kOk = 200;
constexpr int kMostRedirects = 4;

QNetworkRequest requestFor(const QUrl& address, const std::optional<QSslConfiguration>& tls) {
  QNetworkRequest request(address);
  // From HTTPS, what is no less safe is HTTPS.
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setMaximumRedirectsAllowed(kMostRedirects);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Brimle"));
  // The signature is over the bytes as they are, and a limit on compressed ones would be none.
  request.setRawHeader("Accept-Encoding", "identity");
  if (tls) request.setSslConfiguration(*tls);
  return request;
}

/// Reads what has come; an answer over the limit ends here.
void take(QNetworkReply& reply, QByteArray& body, std::size_t limit) {
  body += reply.readAll();
  if (static_cast<std::size_t>(body.size()) > limit) reply.abort();
}

/// The bytes of an answer that came whole; nothing for any other.
std::optional<std::string> result(QNetworkReply& reply, QByteArray& body, std::size_t limit) {
  if (reply.error() != QNetworkReply::NoError) return std::nullopt;
  if (reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != kOk) return std::nullopt;
  body += reply.readAll();
  if (static_cast<std::size_t>(body.size()) > limit) return std::nullopt;
  return body.toStdString();
}

}  // namespace

QtFeedSource::~QtFeedSource() = default;

QNetworkAccessManager& QtFeedSource::manager() {
  if (!manager_) manager_ = std::make_unique<QNetworkAccessManager>();
  return *manager_;
}

void QtFeedSource::fetch(const std::string& address, std::size_t limit, Done done) {
  const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
  if (!url.isValid() || url.scheme() != QLatin1String("https")) {
    QTimer::singleShot(0, &manager(), [done = std::move(done)] { done(std::nullopt); });
    return;
  }
  QNetworkReply* reply = manager().get(requestFor(url, options_.tls));
  reply->setReadBufferSize(static_cast<qint64>(limit) + 1);
  const auto body = std::make_shared<QByteArray>();
  QObject::connect(reply, &QNetworkReply::readyRead, reply, [=] { take(*reply, *body, limit); });
  QObject::connect(reply, &QNetworkReply::finished, reply, [=, done = std::move(done)] {
    reply->deleteLater();
    done(result(*reply, *body, limit));
  });
  QTimer::singleShot(options_.timeLimit, reply, [reply] { reply->abort(); });
}

}  // namespace brimle
