// What the desktop's user asked of all programs: a dark appearance, more contrast, less motion, larger text.
// Read from the Settings portal (org.freedesktop.portal.Settings) without waiting for it, and followed live.
// Where there is no portal nothing is asked for.
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QVariant>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "base/signal.h"

class QDBusServiceWatcher;

namespace brimle {

class QtSettingsPortal : public QObject {
  Q_OBJECT

 public:
  /// Asks the portal; the answer arrives later.
  QtSettingsPortal();
  ~QtSettingsPortal() override;

  /// Whether dark is preferred to light; nothing where there is no preference.
  std::optional<bool> dark() const;
  bool highContrast() const;
  bool reduceMotion() const;
  /// How much larger than usual text is wanted, from 0.5 to 3; 1 is the usual.
  double textScale() const;

  [[nodiscard]] Subscription observe(std::function<void()> observer) {
    return changed_.subscribe(std::move(observer));
  }

 private slots:
  void settingChanged(const QDBusMessage& signal);

 private:
  void readAll();
  QVariant value(const char* group, const char* key) const;

  std::map<std::pair<QString, QString>, QVariant> values_;
  QString portal_;  ///< who answered last, by the name that nobody else has
  std::unique_ptr<QDBusServiceWatcher> portals_;
  Signal<> changed_;
};

}  // namespace brimle
