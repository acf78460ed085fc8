// The interface texts for QML: a map from each English text to the one in the current language.
// Example: Texts.of["Add a task"]. The map is replaced when the language changes, so that bindings follow.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QJSEngine>
#include <QObject>
#include <QQmlEngine>
#include <QVariantMap>
#include <optional>
#include <string>

#include "base/signal.h"
#include "prefs/ui_state.h"

namespace brimle {

class Texts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QVariant of READ of NOTIFY changed)

 public:
  /// `ui` must outlive the texts.
  explicit Texts(UIState& ui);
  ~Texts() override;

  /// The instance that QML gets; the program keeps it.
  static Texts* create(QQmlEngine*, QJSEngine*);

  QVariant of() const { return texts_; }

 signals:
  void changed();

 private:
  void refresh(const UIState& ui);

  std::optional<std::string> language_;  ///< the setting the texts were made for
  QVariantMap texts_;
  Subscription settings_;
};

}  // namespace brimle
