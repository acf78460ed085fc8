// A real HTTPS host on this machine with a certificate of its own, that answers well or badly, and a
// maintainer who publishes feeds there.
#pragma once

#include <QSslConfiguration>
#include <QSslServer>
#include <QTemporaryDir>
#include <string>

class QTcpSocket;

namespace brimle {

class HttpsHost {
 public:
  /// Makes the certificate and the signing key and starts the host. A failure ends the program.
  HttpsHost();

  /// The beginning of an address for a manner of answering. The host's certificate is for its name alone, not
  /// for its number.
  std::string address(const std::string& manner, const std::string& host = "localhost") const;
  /// That of a host that is not secure, for the same files.
  std::string plainAddress() const;
  /// Trusts this host's certificate and no other.
  QSslConfiguration trust() const;

  /// Puts a file on the host.
  void serve(const std::string& name, const std::string& bytes) const;
  /// Puts a file and its signature on the host, signed by the project's own tool.
  void publish(const std::string& name, const std::string& bytes) const;
  std::string publicKey() const;

 private:
  QString path(const std::string& name) const { return folder_.filePath(QString::fromStdString(name)); }
  void listen(QTcpServer& server);
  void answer(QTcpSocket& client) const;

  QTemporaryDir folder_;
  QSslServer secure_;
  QTcpServer plain_;
};

}  // namespace brimle
