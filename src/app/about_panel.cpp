#include "app/about_panel.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "i18n/i18n.h"
#include "views/qt/convert.h"

namespace brimle {
namespace {

constexpr int kIconSize = 64;  // in points

QLabel* makeIcon() {
  auto* icon = new QLabel;
  icon->setPixmap(QApplication::windowIcon().pixmap(kIconSize));
  icon->setAlignment(Qt::AlignHCenter);
  return icon;
}

/// A line of text; `size` in points.
QLabel* makeLine(const QString& text, double size, QFont::Weight weight = QFont::Normal) {
  auto* line = new QLabel(text);
  line->setTextFormat(Qt::PlainText);
  line->setAlignment(Qt::AlignHCenter);
  QFont font = line->font();
  font.setPixelSize(qRound(size));
  font.setWeight(weight);
  line->setFont(font);
  return line;
}

QLabel* makeCredits(Theme& theme, const Credits& credits) {
  QLabel* line = makeLine(toQt(credits.text), credits.size * theme.textScale());
  const auto colour = [line, &theme] {
    QPalette palette = line->palette();
    palette.setColor(QPalette::WindowText, theme.secondary());
    line->setPalette(palette);
  };
  QObject::connect(&theme, &Theme::changed, line, colour);
  colour();
  return line;
}

QDialogButtonBox* makeButtons(QDialog* panel) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QPushButton* close = buttons->button(QDialogButtonBox::Close);
  close->setText(toQt(I18n::t("Close")));
  close->setIcon({});
  QObject::connect(buttons, &QDialogButtonBox::rejected, panel, &QDialog::close);
  return buttons;
}

}  // namespace

QDialog* makeAboutPanel(Theme& theme, const Credits& credits) {
  auto* panel = new QDialog;
  panel->setAttribute(Qt::WA_DeleteOnClose);
  panel->setWindowFlag(Qt::WindowStaysOnTopHint);  // as the main window, which would cover it
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(72, 24, 72, 18);
  column->setSpacing(6);
  column->addWidget(makeIcon());
  column->addWidget(makeLine(QStringLiteral("Brimle"), 17 * theme.textScale(), QFont::DemiBold));
  column->addWidget(makeLine(QApplication::applicationVersion(), 11 * theme.textScale()));
  column->addWidget(makeCredits(theme, credits));
  column->addSpacing(8);
  column->addWidget(makeButtons(panel));
  column->setSizeConstraint(QLayout::SetFixedSize);
  return panel;
}

}  // namespace brimle
