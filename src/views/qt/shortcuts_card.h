// The shortcuts card for QML, and the panel that shows it: made when first asked for, kept when closed.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QVariantList>
#include <functional>
#include <memory>

#include "control/keys.h"
#include "i18n/region.h"
#include "platform/shortcuts_panel.h"
#include "prefs/ui_state.h"

namespace brimle {

class ShortcutsCard : public QObject, public ShortcutsPanel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made by the program")
  /// Sections {title, rows}, each row {keys, description, hint}, in the interface language.
  Q_PROPERTY(QVariantList sections READ sections NOTIFY changed)

 public:
  /// All references must outlive the card.
  ShortcutsCard(QQmlEngine& engine, UIState& ui, Region region);

  QVariantList sections() const;

  void show(const std::string& title) override;

  /// Who gets the keys that are pressed in the panel; whether a key was used.
  void onKey(std::function<bool(const KeyPress&)> action) { key_ = std::move(action); }

  /// Which key stands for the hot key on this desktop, as the user reads it; empty where none does.
  void setHotKey(const std::string& key);

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QQuickWindow* makePanel();

  QQmlEngine& engine_;
  const Region region_;
  QString hotKey_;
  std::function<bool(const KeyPress&)> key_;
  Subscription settings_;
  std::unique_ptr<QQuickWindow> panel_;
};

}  // namespace brimle
