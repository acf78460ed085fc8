#include "views/qt/theme.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <utility>

#include "views/qt/convert.h"
#include "views/spring.h"

namespace brimle {
namespace {

/// Rows that come, go and move.
constexpr Spring kListSpring{0.3, 0.8};
/// The tick filling its ring.
constexpr Spring kTickSpring{0.25, 0.6};

Theme* instance = nullptr;

QVariantList curveOf(const Spring& spring) {
  QVariantList list;
  for (const double number : spring.bezier()) list.append(number);
  return list;
}

/// A translucent colour as it looks on a ground.
QColor over(const QColor& color, const QColor& ground) {
  const auto mix = [a = color.alphaF()](float top, float below) { return top * a + below * (1 - a); };
  return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                          mix(color.blueF(), ground.blueF()));
}

int milliseconds(const Spring& spring) {
  return qRound(spring.duration() * 1000);
}

/// Typefaces with round ends, the one to prefer first; the plain one where none is installed.
constexpr const char* kRoundedFamilies[] = {"Nunito", "Quicksand", "Varela Round", "M PLUS Rounded 1c",
                                            "Comfortaa"};

QString findRoundedFamily() {
  const QStringList installed = QFontDatabase::families();
  for (const char* family : kRoundedFamilies) {
    if (installed.contains(QLatin1String(family))) return QLatin1String(family);
  }
  return QGuiApplication::font().family();
}

/// Looked for once: listing the installed families is slow.
QString roundedFamily() {
  static const QString family = findRoundedFamily();
  return family;
}

}  // namespace

Theme::Theme(UIState& ui)
    : ui_(ui), fonts_(fontBasis()), seen_(settings()), following_(ui.observe([this] { settingsTold(); })) {
  instance = this;
}

Theme::~Theme() {
  instance = nullptr;
}

Theme* Theme::create(QQmlEngine*, QJSEngine*) {
  QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
  return instance;
}

template <class Value>
void Theme::assign(Value& member, Value value) {
  if (std::exchange(member, value) == value) return;
  fonts_.setBasis(fontBasis());
  emit changed();
}

Theme::Settings Theme::settings() const {
  return {ui_.fontDesign(), ui_.textSize(), ui_.paperTone(), ui_.margin()};
}

/// The state of the window is told in the same way, at every letter of a search; the views follow that
/// themselves.
void Theme::settingsTold() {
  assign(seen_, settings());
}

void Theme::setAppearance(Appearance appearance) {
  assign(appearance_, appearance);
}
void Theme::setHighContrast(bool high) {
  assign(highContrast_, high);
}
void Theme::setReduceMotion(bool reduce) {
  assign(reduceMotion_, reduce);
}
void Theme::setFocusShown(bool shown) {
  if (std::exchange(focusShown_, shown) != shown) emit focusShownChanged();
}

void Theme::setTextScale(double scale) {
  assign(textScale_, scale);
}

QColor Theme::paper() const {
  return toQt(Palette::paper(appearance_));
}
QColor Theme::pencilRed() const {
  return toQt(Palette::pencilRed(appearance_));
}
QColor Theme::highlight() const {
  return toQt(Palette::highlight(appearance_));
}
QColor Theme::selection() const {
  return toQt(Palette::selection(appearance_));
}
QColor Theme::primary() const {
  return toQt(Palette::label(Palette::Label::primary, appearance_, highContrast_));
}
QColor Theme::secondary() const {
  return toQt(Palette::label(Palette::Label::secondary, appearance_, highContrast_));
}
QColor Theme::tertiary() const {
  return toQt(Palette::label(Palette::Label::tertiary, appearance_, highContrast_));
}
QColor Theme::placeholder() const {
  return toQt(Palette::label(Palette::Label::placeholder, appearance_, highContrast_));
}

QString Theme::fontFamily() const {
  switch (ui_.design()) {
    case FontDesign::serif: return QStringLiteral("serif");
    case FontDesign::rounded: return roundedFamily();
    case FontDesign::standard: break;
  }
  return QGuiApplication::font().family();
}

Fonts::Basis Theme::fontBasis() const {
  return {fontFamily(), QGuiApplication::font().family(), baseSize(), textScale_};
}

// Computed once: every row has animations of its own.
QVariantList Theme::listSpring() const {
  static const QVariantList curve = curveOf(kListSpring);
  return curve;
}
int Theme::listSpringDuration() const {
  return milliseconds(kListSpring);
}
QVariantList Theme::tickSpring() const {
  static const QVariantList curve = curveOf(kTickSpring);
  return curve;
}
int Theme::tickSpringDuration() const {
  return milliseconds(kTickSpring);
}

QPalette Theme::palette() const {
  QPalette palette(paper());
  const QColor text = over(primary(), paper());
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, over(faded(primary(), 0.45), paper()));
  }
  for (const auto role : {QPalette::Window, QPalette::Button, QPalette::ToolTipBase}) {
    palette.setColor(role, paper());
  }
  // Menus lie above the paper, and must be told from it where it is dark.
  palette.setColor(QPalette::Base, over(faded(Qt::white, 0.05), paper()));
  palette.setColor(QPalette::Highlight, over(faded(primary(), 0.2), paper()));
  palette.setColor(QPalette::HighlightedText, text);
  palette.setColor(QPalette::PlaceholderText, over(placeholder(), paper()));
  palette.setColor(QPalette::Link, pencilRed());
  return palette;
}

QColor Theme::faded(const QColor& color, double opacity) {
  QColor result = color;
  result.setAlphaF(static_cast<float>(color.alphaF() * opacity));
  return result;
}

}  // namespace brimle
