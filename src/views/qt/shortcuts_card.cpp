#include "views/qt/shortcuts_card.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QQmlComponent>
#include <QScreen>
#include <utility>

#include "views/qt/convert.h"
#include "views/qt/key_events.h"
#include "views/shortcuts_view.h"

namespace brimle {
namespace {

/// As the menus write them. A name that the desktop gave, which may be a sentence, stays as it is.
QString nameOfKeys(const std::string& names) {
  const QKeySequence keys = QKeySequence::fromString(toQt(names));
  return keys.toString() == toQt(names) ? keys.toString(QKeySequence::NativeText) : toQt(names);
}

}  // namespace

ShortcutsCard::ShortcutsCard(QQmlEngine& engine, UIState& ui, Region region)
    : engine_(engine), region_(std::move(region)), settings_(ui.observe([this] { emit changed(); })) {}

QVariantList ShortcutsCard::sections() const {
  QVariantList sections;
  for (const ShortcutsSection& section : shortcutsCard(region_, fromQt(hotKey_))) {
    QVariantList rows;
    for (const auto& row : section.rows) {
      rows.append(QVariantMap{{QStringLiteral("keys"), toQt(row.keys)},
                              {QStringLiteral("description"), toQt(row.description)},
                              {QStringLiteral("hint"), nameOfKeys(row.names)}});
    }
    sections.append(
        QVariantMap{{QStringLiteral("title"), toQt(section.title)}, {QStringLiteral("rows"), rows}});
  }
  return sections;
}

void ShortcutsCard::setHotKey(const std::string& key) {
  hotKey_ = toQt(key);
  emit changed();
}

void ShortcutsCard::show(const std::string& title) {
  if (!panel_) panel_.reset(makePanel());
  panel_->setTitle(toQt(title));
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    QRect place(QPoint(), panel_->size());
    place.moveCenter(screen->availableGeometry().center());
    panel_->setPosition(place.topLeft());
  }
  panel_->show();
  panel_->raise();
  panel_->requestActivate();
}

bool ShortcutsCard::eventFilter(QObject*, QEvent* event) {
  return event->type() == QEvent::KeyPress && key_ && key_(keyPressOf(*static_cast<QKeyEvent*>(event)));
}

QQuickWindow* ShortcutsCard::makePanel() {
  QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/qt/qml/Brimle/ShortcutsPanel.qml")));
  auto* panel = qobject_cast<QQuickWindow*>(
      component.createWithInitialProperties({{QStringLiteral("card"), QVariant::fromValue(this)}}));
  if (!panel) qFatal("the shortcuts panel could not be made");
  panel->installEventFilter(this);
  return panel;
}

}  // namespace brimle
