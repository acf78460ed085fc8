#include "views/qt/main_window.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "views/qt/convert.h"
#include "views/window_measures.h"

Q_IMPORT_QML_PLUGIN(BrimlePlugin)

namespace brimle {
namespace {

/// How long the window takes to fold, to unfold or to take a preset size, in milliseconds.
constexpr int kResizing = 200;

QUrl windowFile() {
  return QUrl(QStringLiteral("qrc:/qt/qml/Brimle/MainWindow.qml"));
}

QSize toQt(const Size& size) {
  return QSizeF(size.width, size.height).toSize();
}

Rect rectOf(const QRect& rect) {
  return {double(rect.x()), double(rect.y()), double(rect.width()), double(rect.height())};
}

}  // namespace

MainWindow::Foundation::Foundation(UIState& ui)
    : theme(std::make_unique<Theme>(ui)), engine(std::make_unique<QQmlApplicationEngine>()) {
  new QQmlComponent(engine.get(), windowFile(), QQmlComponent::Asynchronous, engine.get());
  theme->fonts().prepare();
}

MainWindow::MainWindow(Today::Parts parts, Pasteboard& pasteboard, Foundation foundation)
    : store_(parts.store),
      keys_(parts.store, parts.sel, parts.ui, pasteboard, parts.todayFocusAdd),
      clickAway_(parts.sel, parts.ui, parts.time),
      theme_(std::move(foundation.theme)),
      texts_(parts.ui),
      today_(parts),
      archive_(parts.store, parts.sel, parts.ui, parts.archive, parts.todayFocusAdd),
      engine_(std::move(foundation.engine)),
      shortcuts_(*engine_, parts.ui, parts.store.entryContext().region) {
  engine_->setInitialProperties({{QStringLiteral("today"), QVariant::fromValue(&today_)},
                                 {QStringLiteral("archive"), QVariant::fromValue(&archive_)}});
  engine_->load(windowFile());
  if (engine_->rootObjects().isEmpty()) qFatal("the window could not be made");
  window_ = qobject_cast<QQuickWindow*>(engine_->rootObjects().constFirst());
  // Not in QML, where the first look at Qt's flags in a binding takes 10 ms: all of them are listed for it.
  window_->setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
  window_->setMinimumSize(toQt(kLeastSize));
  window_->resize(toQt(kRegularSize));
  window_->installEventFilter(this);
  connect(&today_, &Today::menuRequested, this, &MainWindow::openMenu);
  connect(theme_.get(), &Theme::changed, this, [this] { QApplication::setPalette(theme_->palette()); });
  QApplication::setPalette(theme_->palette());
  resizing_.setDuration(kResizing);
  resizing_.setEasingCurve(QEasingCurve::InOutQuad);
  connect(&resizing_, &QVariantAnimation::valueChanged, window_,
          [this](const QVariant& now) { window_->setGeometry(now.toRect()); });
}

MainWindow::~MainWindow() {
  window_->removeEventFilter(this);
}

void MainWindow::setReports(Reports reports) {
  reports_ = std::move(reports);
  shortcuts_.onKey(reports_.key);
}

Rect MainWindow::frame() const {
  if (resizing_.state() == QVariantAnimation::Running) return rectOf(resizing_.endValue().toRect());
  return rectOf(window_->isVisible() || shownAt_.isNull() ? window_->geometry() : shownAt_);
}

void MainWindow::setFrame(const Rect& frame) {
  const QRect target = QRectF(frame.x, frame.y, frame.width, frame.height).toRect();
  resizing_.stop();
  shownAt_ = target;
  window_->setMinimumHeight(qMin(target.height(), static_cast<int>(kLeastSize.height)));
  if (theme_->reduceMotion() || !window_->isVisible()) return window_->setGeometry(target);
  resizing_.setStartValue(window_->geometry());
  resizing_.setEndValue(target);
  resizing_.start();
}

std::vector<Rect> MainWindow::screens() const {
  const QScreen* first = window_->screen() ? window_->screen() : QGuiApplication::primaryScreen();
  std::vector<Rect> screens;
  if (first) screens.push_back(rectOf(first->availableGeometry()));
  for (const QScreen* screen : QGuiApplication::screens()) {
    if (screen != first) screens.push_back(rectOf(screen->availableGeometry()));
  }
  return screens;
}

/// A window manager places a window that was hidden anew, unless it is told where it was.
void MainWindow::orderFront() {
  const bool wasHidden = !window_->isVisible();
  if (wasHidden && !shownAt_.isNull()) window_->setGeometry(shownAt_);
  if (window_->windowStates().testFlag(Qt::WindowMinimized)) {
    window_->showNormal();
  } else {
    window_->show();
  }
  if (wasHidden && reports_.shown) reports_.shown(*window_);
  window_->raise();
  window_->requestActivate();
}

void MainWindow::minimise() {
  window_->showMinimized();
}

void MainWindow::refreshPaper() {
  emit theme_->changed();
}

bool MainWindow::edit(EditCommand command) {
  struct Row {
    EditCommand command;
    const char* method;
    const char* condition;  ///< the property without which the field leaves the command to others
  };
  static constexpr Row kRows[] = {
      {EditCommand::undo, "undo", "canUndo"}, {EditCommand::redo, "redo", "canRedo"},
      {EditCommand::cut, "cut", nullptr},     {EditCommand::copy, "copy", nullptr},
      {EditCommand::paste, "paste", nullptr}, {EditCommand::selectAll, "selectAll", nullptr},
  };
  QQuickItem* field = window_->activeFocusItem();
  if (command == EditCommand::paste &&
      keys_.filter({KeyCode::other, "v", Modifier::command}, keyboardPlace())) {
    return true;
  }
  if (!field || !keyboardPlace().inTextField) return actOnRows(command);
  const Row& row = *std::ranges::find(kRows, command, &Row::command);
  if (row.condition && !field->property(row.condition).toBool()) return false;
  return QMetaObject::invokeMethod(field, row.method);
}

/// What the menu's command means to the rows is what its key means to them.
bool MainWindow::actOnRows(EditCommand command) {
  const bool copies = command == EditCommand::copy;
  if (!copies && command != EditCommand::selectAll) return false;
  return keys_.filter({copies ? KeyCode::c : KeyCode::a, copies ? "c" : "a", Modifier::command},
                      keyboardPlace());
}

}  // namespace brimle
