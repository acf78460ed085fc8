#include "app/qt_application.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "i18n/i18n.h"
#include "views/qt/convert.h"

namespace brimle {
namespace {

constexpr int kIconSize = 64;  // of the about panel, in points

void colour(QLabel* label, const QColor& ink) {
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, ink);
  label->setPalette(palette);
}

QLabel* centred(const QString& text, double size, QFont::Weight weight = QFont::Normal) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignHCenter);
  QFont font = label->font();
  font.setPixelSize(qRound(size));
  font.setWeight(weight);
  label->setFont(font);
  return label;
}

bool isVisible(const QWindow* window) {
  const bool ofItsOwn = window->type() == Qt::Window || window->type() == Qt::Dialog;
  return ofItsOwn && window->isVisible() && !window->windowStates().testFlag(Qt::WindowMinimized);
}

}  // namespace

QtApplication::QtApplication(Theme& theme, QtSettingsPortal& settings, bool desktopLooksDark)
    : theme_(theme),
      settings_(settings),
      desktopLooksDark_(desktopLooksDark),
      following_(settings.observe([this] { follow(); })) {
  follow();
}

void QtApplication::follow() {
  const bool dark = forcedDark_.value_or(settings_.dark().value_or(desktopLooksDark_));
  theme_.setAppearance(dark ? Appearance::dark : Appearance::light);
  theme_.setHighContrast(settings_.highContrast());
  theme_.setReduceMotion(settings_.reduceMotion());
  theme_.setTextScale(settings_.textScale());
}

/// The token goes to whichever window asks for the keyboard next.
void QtApplication::activate(const std::string& token) {
  if (!token.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(token));
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (!isVisible(window)) continue;
    window->raise();
    window->requestActivate();
  }
}

bool QtApplication::hasVisibleWindow() const {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  return std::any_of(windows.begin(), windows.end(), isVisible);
}

void QtApplication::forceAppearance(std::optional<bool> dark) {
  forcedDark_ = dark;
  follow();
}

void QtApplication::showAbout(const Credits& credits) {
  if (!about_) {
    auto* panel = new QDialog;
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowFlag(Qt::WindowStaysOnTopHint);  // as the main window, which would cover it
    auto* icon = new QLabel;
    icon->setPixmap(QApplication::windowIcon().pixmap(kIconSize));
    icon->setAlignment(Qt::AlignHCenter);
    const double scale = theme_.textScale();
    auto* words = centred(toQt(credits.text), credits.size * scale);
    colour(words, theme_.secondary());
    QObject::connect(&theme_, &Theme::changed, words, [this, words] { colour(words, theme_.secondary()); });
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* close = buttons->button(QDialogButtonBox::Close);
    close->setText(toQt(I18n::t("Close")));
    close->setIcon({});
    QObject::connect(buttons, &QDialogButtonBox::rejected, panel, &QDialog::close);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(48, 24, 48, 18);
    column->setSpacing(6);
    column->addWidget(icon);
    column->addWidget(centred(QStringLiteral("Brimle"), 17 * scale, QFont::DemiBold));
    column->addWidget(centred(QApplication::applicationVersion(), 11 * scale));
    column->addWidget(words);
    column->addSpacing(8);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    about_ = panel;
  }
  about_->setWindowTitle(toQt(I18n::t("About Brimle")));
  about_->show();
}

void QtApplication::quit() {
  QMetaObject::invokeMethod(
      qApp, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
}

}  // namespace brimle
