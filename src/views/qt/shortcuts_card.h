// The shortcuts card for QML, and the panel that shows it: made when first asked for, kept when closed.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QVariantList>
#include <memory>

#include "i18n/region.h"
#include "prefs/ui_state.h"

namespace brimle {

class ShortcutsCard : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  /// Sections {title, rows}, each row {keys, description, hint}, in the interface language.
  Q_PROPERTY(QVariantList sections READ sections NOTIFY changed)

 public:
  /// All references must outlive the card.
  ShortcutsCard(QQmlEngine& engine, UIState& ui, Region region);

  QVariantList sections() const;

  /// Brings the panel to the front, with the keyboard; the first time in the middle of the screen.
  void show();

 signals:
  void changed();

 private:
  QQuickWindow* makePanel();

  QQmlEngine& engine_;
  const Region region_;
  Subscription settings_;
  std::unique_ptr<QQuickWindow> panel_;
};

}  // namespace brimle
