// The FeedSource port on QNetworkAccessManager: HTTPS alone, within a limit of bytes and of time.
//
// Whatever is wrong with a connection or an answer is the same failure: no certificate error is ignored, no
// redirection leaves HTTPS, and an answer that does not end is cut off. The network is met at the first
// fetch, not before.
#pragma once

#include <QNetworkAccessManager>
#include <QSslConfiguration>
#include <chrono>
#include <memory>

#include "platform/feed_source.h"

namespace brimle {

class QtFeedSource : public FeedSource {
 public:
  /// How a connection is made.
  struct Options {
    std::chrono::milliseconds timeLimit = std::chrono::seconds(20);  ///< from the request to the last byte
    std::optional<QSslConfiguration> tls;                            ///< where absent, the system's
  };

  QtFeedSource() = default;
  explicit QtFeedSource(Options options) : options_(std::move(options)) {}
  ~QtFeedSource() override;

  void fetch(const std::string& address, std::size_t limit, Done done) override;

 private:
  QNetworkAccessManager& manager();

  Options options_;
  std::unique_ptr<QNetworkAccessManager> manager_;
};

}  // namespace brimle
