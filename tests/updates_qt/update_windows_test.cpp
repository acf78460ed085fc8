// The window that tells what an update check found: what it says, and what its buttons do.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "platform/desktop/qt_update_windows.h"

namespace brimle {
namespace {

/// Stands for the browser.
class Browser : public QObject {
  Q_OBJECT

 public:
  Browser() { QDesktopServices::setUrlHandler("https", this, "open"); }
  ~Browser() override { QDesktopServices::unsetUrlHandler("https"); }

  QList<QUrl> opened;

 public slots:
  void open(const QUrl& url) { opened.append(url); }
};

const UpdateMessage kNew{"A <b>new</b> version",
                         "1.2.0\n15 June 2026",
                         "<img src='https://a.example'>\nFaster.",
                         {{"Download", "https://a.example/1.2?x=%20"}, {"Later", ""}}};
const UpdateMessage kFailed{"The update check failed", "No signature.", "", {{"OK", ""}}};

class UpdateWindow : public testing::Test {
 protected:
  static QWidget* window() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->isVisible()) return widget;
    }
    return nullptr;
  }
  static void press(const QString& text) {
    for (QPushButton* button : window()->findChildren<QPushButton*>()) {
      if (button->text() == text) return QTest::mouseClick(button, Qt::LeftButton);
    }
    FAIL() << "no button " << text.toStdString();
  }

  QtUpdateWindows windows;
  Browser browser;
};

TEST_F(UpdateWindow, SaysTheMessageAsPlainText) {
  windows.show(kNew);
  QStringList texts;
  for (QLabel* label : window()->findChildren<QLabel*>()) {
    if (label->textFormat() == Qt::PlainText) texts.append(label->text());
  }
  EXPECT_EQ(texts, QStringList({"A <b>new</b> version", "1.2.0\n15 June 2026"}));
  EXPECT_EQ(window()->findChild<QPlainTextEdit*>()->toPlainText(), "<img src='https://a.example'>\nFaster.");
  EXPECT_TRUE(window()->findChild<QPlainTextEdit*>()->isReadOnly());
  EXPECT_FALSE(window()->isModal());

  windows.show(kFailed);
  EXPECT_EQ(window()->findChild<QPlainTextEdit*>(), nullptr);
  EXPECT_TRUE(windows.isOpen());
}

TEST_F(UpdateWindow, OpensTheAddressAsItIsAndCloses) {
  windows.show(kNew);
  press("Later");
  EXPECT_FALSE(windows.isOpen());
  windows.bringForward();
  EXPECT_EQ(window(), nullptr) << "it stays closed";
  EXPECT_TRUE(browser.opened.isEmpty());

  windows.show(kNew);
  press("Download");
  EXPECT_FALSE(windows.isOpen());
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    windows.show(kNew);
    QTest::keyClick(window()->focusWidget(), key);
    EXPECT_FALSE(windows.isOpen()) << key;
  }
  ASSERT_EQ(browser.opened.size(), 3);
  EXPECT_EQ(browser.opened[0].toEncoded(), "https://a.example/1.2?x=%20");

  QDesktopServices::setUrlHandler("https", &browser, "absent");
  windows.show(kNew);
  press("Download");
  window()->showMinimized();
  windows.bringForward();
  EXPECT_FALSE(window()->isMinimized());
  EXPECT_TRUE(windows.isOpen()) << "nothing opened the address";
}

}  // namespace
}  // namespace brimle

#include "update_windows_test.moc"
