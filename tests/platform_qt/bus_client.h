// A stranger on the session bus, on a connection of its own, who calls upon the program and reads what it
// answers.
#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QVariant>
#include <memory>

namespace brimle {

class BusClient {
 public:
  static constexpr int kPatience = 60'000;  // milliseconds; only a broken machine needs them

  explicit BusClient(const QString& name);
  ~BusClient();

  QDBusConnection& bus() { return bus_; }
  /// The parts of the answer, with structures and arrays as lists. An error fails the test.
  QVariantList ask(const QString& service, const QString& path, const QString& interface,
                   const QString& method, const QVariantList& arguments);
  /// Whether the answer is an error.
  bool isRefused(const QString& service, const QString& path, const QString& interface, const QString& method,
                 const QVariantList& arguments);
  bool hasAnswer() const { return call_.isFinished(); }

 private:
  void await(const QString& service, const QString& path, const QString& interface, const QString& method,
             const QVariantList& arguments);

  const QString name_;
  QDBusConnection bus_;
  QDBusPendingCall call_;  ///< the last
};

/// Takes the calls that others make on a service and never answers. It lives in a thread of its own, so that
/// it can tell whether the program's main thread goes on meanwhile.
class SilentService {
 public:
  explicit SilentService(const QString& name);
  ~SilentService();

  /// Returns once the method was called; whether the main thread went on while it had no answer.
  bool isNotWaitedFor(const QString& method);

 private:
  class Object;

  const QString name_;
  const std::unique_ptr<Object> object_;
};

}  // namespace brimle
