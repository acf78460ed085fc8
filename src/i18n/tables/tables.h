// The translated texts: two arrays for each of the eleven languages beside English, one file a language.
//
// Every array lists the same keys in the same order: kGerman and its fellows the 97 texts of the interface,
// kGermanDesktop and its fellows the texts that our desktop adds. Constant data; lookup is not done here.
// Example of a row: {"Yesterday", "Gestern"}.
#pragma once

#include <cstddef>

#include "i18n/i18n.h"

namespace brimle::I18n {

inline constexpr std::size_t kInterfaceTexts = 97;
inline constexpr std::size_t kDesktopTexts = 23;

using InterfaceTable = Translation[kInterfaceTexts];
using DesktopTable = Translation[kDesktopTexts];

extern const InterfaceTable kSpanish, kGerman, kFrench, kItalian, kDutch, kPortuguese, kIndonesian, kJapanese,
    kKorean, kChineseSimplified, kChineseTraditional;

extern const DesktopTable kSpanishDesktop, kGermanDesktop, kFrenchDesktop, kItalianDesktop, kDutchDesktop,
    kPortugueseDesktop, kIndonesianDesktop, kJapaneseDesktop, kKoreanDesktop, kChineseSimplifiedDesktop,
    kChineseTraditionalDesktop;

}  // namespace brimle::I18n
