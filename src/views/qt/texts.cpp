#include "views/qt/texts.h"

#include "i18n/i18n.h"
#include "views/qt/convert.h"

namespace brimle {
namespace {

Texts* instance = nullptr;

}  // namespace

Texts::Texts(UIState& ui) : settings_(ui.observe([this, &ui] { refresh(ui); })) {
  instance = this;
  refresh(ui);
}

Texts::~Texts() {
  instance = nullptr;
}

Texts* Texts::create(QQmlEngine*, QJSEngine*) {
  QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
  return instance;
}

void Texts::refresh(const UIState& ui) {
  if (language_ == ui.language()) return;
  language_ = ui.language();
  texts_.clear();
  // Any table has all keys, and English is the keys themselves.
  for (const auto& table : {I18n::table("de"), I18n::desktopTable("de")}) {
    for (const I18n::Translation& row : table) texts_.insert(toQt(row.key), toQt(I18n::t(row.key)));
  }
  emit changed();
}

}  // namespace brimle
