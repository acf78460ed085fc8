#include "views/qt/fonts.h"

#include <QFontMetricsF>

namespace brimle {
namespace {

Fonts* instance = nullptr;

enum class Family { chosen, desktop };
enum class Size { relative, fixed };  // to the size of a task's text

}  // namespace

struct Fonts::Style {
  QFont Fonts::*font;
  Family family;
  Size from;
  double size;
  QFont::Weight weight = QFont::Normal;
  bool struckOut = false;
};

constexpr Fonts::Style Fonts::kStyles[] = {
    {&Fonts::title_, Family::chosen, Size::relative, +1, QFont::DemiBold},
    {&Fonts::task_, Family::chosen, Size::relative, 0},
    {&Fonts::doneTask_, Family::chosen, Size::relative, 0, QFont::Normal, true},
    {&Fonts::nothing_, Family::chosen, Size::relative, -1},
    {&Fonts::note_, Family::chosen, Size::relative, -2},
    {&Fonts::day_, Family::chosen, Size::relative, -2, QFont::DemiBold},
    {&Fonts::small_, Family::chosen, Size::relative, -3},
    {&Fonts::boundary_, Family::chosen, Size::fixed, 10, QFont::DemiBold},
    {&Fonts::badge_, Family::chosen, Size::fixed, 9, QFont::Medium},
    {&Fonts::tooltip_, Family::chosen, Size::fixed, 11},
    {&Fonts::section_, Family::desktop, Size::fixed, 11, QFont::DemiBold},
    {&Fonts::key_, Family::desktop, Size::fixed, 12, QFont::DemiBold},
    {&Fonts::description_, Family::desktop, Size::fixed, 12},
};

Fonts::Fonts(const Basis& basis) {
  instance = this;
  setBasis(basis);
}

Fonts::~Fonts() {
  instance = nullptr;
}

Fonts* Fonts::create(QQmlEngine*, QJSEngine*) {
  QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
  return instance;
}

void Fonts::setBasis(const Basis& basis) {
  if (basis == basis_) return;
  basis_ = basis;
  for (const Style& style : kStyles) {
    QFont font(style.family == Family::chosen ? basis.family : basis.systemFamily);
    const double size = style.from == Size::relative ? basis.size + style.size : style.size;
    font.setPixelSize(qRound(size * basis.scale));
    font.setWeight(style.weight);
    font.setStrikeOut(style.struckOut);
    this->*style.font = font;
  }
  emit changed();
}

void Fonts::prepare() const {
  for (const QFont& font : {title_, task_, note_}) QFontMetricsF(font).horizontalAdvance(QLatin1Char('x'));
}

}  // namespace brimle
