// A real HTTPS host on this machine with a certificate of its own, and a maintainer who publishes feeds
// there.
#pragma once

#include <QProcess>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <string>

namespace brimle {

class HttpsHost {
 public:
  /// Makes the certificate and the signing key and starts the host. A failure ends the program.
  HttpsHost();
  ~HttpsHost();

  /// The beginning of an address for a manner of answering (see feed_server.py).
  std::string address(const std::string& manner) const;
  /// Likewise by the host's number, for which its certificate is not.
  std::string addressByNumber() const;
  std::string plainAddress() const;
  /// Trusts this host's certificate and no other.
  QSslConfiguration trust() const;

  /// Puts a file on the host.
  void serve(const std::string& name, const std::string& bytes) const;
  /// Puts a file and its signature on the host, signed by the project's own tool.
  void publish(const std::string& name, const std::string& bytes) const;
  std::string publicKey() const;

 private:
  QString path(const std::string& name) const;

  QTemporaryDir folder_;
  QProcess server_;
  std::string port_;
  std::string plainPort_;
};

}  // namespace brimle
