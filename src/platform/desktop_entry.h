// The text of a desktop entry file (Desktop Entry Specification 1.5), as far as an entry that starts a
// program needs it: its keys in the group [Desktop Entry], and the program that its Exec key names. Keys,
// groups, comments and translations that nobody asks for stay as they are. Example:
//
//   [Desktop Entry]
//   Type=Application
//   Name=Brimle
//   Exec="/opt/my apps/brimle"
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimle {

/// A key's value as it is written; the last where it stands more than once, nothing where it is absent.
std::optional<std::string> entryValue(std::string_view text, std::string_view key);

/// The text with that value, written as it is to stand there, or without the key where there is none. A text
/// that has no such group is not kept.
std::string withEntryValue(std::string_view text, std::string_view key,
                           const std::optional<std::string>& value);

/// The value of Exec that starts the program without arguments.
std::string execValue(std::string_view program);

/// The program that a value of Exec starts; nothing where it names none.
std::optional<std::string> programOfExec(std::string_view exec);

}  // namespace brimle
