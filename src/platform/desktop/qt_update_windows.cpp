#include "platform/desktop/qt_update_windows.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace brimle {
namespace {

constexpr int kNarrowest = 360;
constexpr int kNotesHeight = 140;

QLabel* makeLabel(const std::string& text) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setText(QString::fromStdString(text));
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QLabel* makeTitle(const std::string& text) {
  QLabel* title = makeLabel(text);
  QFont font = title->font();
  font.setBold(true);
  title->setFont(font);
  return title;
}

QPlainTextEdit* makeNotes(const UpdateMessage& message) {
  auto* notes = new QPlainTextEdit(QString::fromStdString(message.notes));
  notes->setAccessibleName(QString::fromStdString(message.title));
  notes->setReadOnly(true);
  notes->setTabChangesFocus(true);
  notes->setFixedHeight(kNotesHeight);
  return notes;
}

/// Opens the button's address and closes the dialog; where nothing opens it, the dialog stays.
void press(QDialog& dialog, const std::string& address) {
  const QUrl url = QUrl::fromEncoded(QByteArray::fromStdString(address), QUrl::StrictMode);
  if (address.empty() || QDesktopServices::openUrl(url)) {
    dialog.close();
  } else {
    QApplication::beep();
  }
}

QDialogButtonBox* makeButtons(QDialog& dialog, const std::vector<UpdateMessage::Button>& buttons) {
  auto* box = new QDialogButtonBox(&dialog);
  for (const auto& [text, address] : buttons) {
    const auto role = address.empty() ? QDialogButtonBox::RejectRole : QDialogButtonBox::AcceptRole;
    QPushButton* button = box->addButton(QString::fromStdString(text), role);
    if (&text == &buttons.front().text) {
      button->setDefault(true);
      button->setFocus();  // not the notes, which come first
    }
    QObject::connect(button, &QPushButton::clicked, &dialog,
                     [&dialog, address = address] { press(dialog, address); });
  }
  return box;
}

std::unique_ptr<QDialog> makeDialog(const UpdateMessage& message) {
  auto dialog = std::make_unique<QDialog>(nullptr, Qt::WindowStaysOnTopHint);
  dialog->setWindowTitle(QStringLiteral("Brimle"));
  dialog->setMinimumWidth(kNarrowest);
  auto* layout = new QVBoxLayout(dialog.get());
  layout->addWidget(makeTitle(message.title));
  layout->addWidget(makeLabel(message.text));
  if (!message.notes.empty()) layout->addWidget(makeNotes(message));
  layout->addStretch();
  layout->addWidget(makeButtons(*dialog, message.buttons));
  return dialog;
}

}  // namespace

QtUpdateWindows::QtUpdateWindows() = default;
QtUpdateWindows::~QtUpdateWindows() = default;

void QtUpdateWindows::show(const UpdateMessage& message) {
  dialog_ = makeDialog(message);
  dialog_->show();
  bringForward();
}

bool QtUpdateWindows::isOpen() const {
  return dialog_ && dialog_->isVisible();
}

void QtUpdateWindows::bringForward() {
  if (!isOpen()) return;
  dialog_->setWindowState(dialog_->windowState() & ~Qt::WindowMinimized);
  dialog_->raise();
  dialog_->activateWindow();
}

}  // namespace brimle
