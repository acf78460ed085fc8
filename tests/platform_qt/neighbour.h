// Somebody else on the session bus, on a connection of its own: has a service there, takes the calls that the
// program makes on it, calls upon the program, tells signals and hears the program's.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <vector>

namespace brimle {

class Neighbour : public QDBusVirtualObject {
  Q_OBJECT

 public:
  std::vector<QDBusMessage> calls;  ///< that came, whatever was answered
  std::vector<QDBusMessage> heard;  ///< the signals of status items and their menus

  explicit Neighbour(QString service = {});
  ~Neighbour() override;

  /// Takes its name on the bus, or gives it back.
  virtual void appear();
  void vanish();

  /// What the program answers, with structures and arrays as lists. An error fails the test.
  QVariantList ask(const QString& path, const QString& interface, const QString& method,
                   const QVariantList& arguments);
  /// Whether the answer is an error.
  bool isRefused(const QString& path, const QString& interface, const QString& method,
                 const QVariantList& arguments);
  /// Whether the program has answered the last question.
  bool hasAnswer() const { return call_.isFinished(); }

  void tell(const QString& path, const QString& interface, const QString& signal,
            const QVariantList& arguments);

  void waitForCalls(std::size_t count) const;
  /// Returns when what either side said has arrived at the other, and what was said then, too.
  void settle(const QDBusConnection& program = QDBusConnection::sessionBus()) const;

  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;
  QString introspect(const QString&) const override { return {}; }

 protected:
  /// By default all calls are refused.
  virtual void answer(const QDBusMessage& call) { refuse(call); }
  void reply(const QDBusMessage& call, const QVariantList& values) { bus_.send(call.createReply(values)); }
  void refuse(const QDBusMessage& call) {
    if (call.isReplyRequired()) bus_.send(call.createErrorReply(QDBusError::Failed, "no"));
  }

 private slots:
  void hear(const QDBusMessage& signal) { heard.push_back(signal); }

 private:
  const QDBusPendingCall& await(const QString& path, const QString& interface, const QString& method,
                                const QVariantList& arguments);

  const QString service_, connection_;
  QDBusConnection bus_{QString()};
  QDBusPendingCall call_;  ///< the last
};

/// The arguments of a message, with structures and arrays as lists.
QVariantList plainArguments(const QDBusMessage& message);

}  // namespace brimle
