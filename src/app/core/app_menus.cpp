// The menu bar with its check marks, what its items do, and the settings they choose.
#include <algorithm>

#include "app/core/app_delegate.h"

namespace brimle {
namespace {

constexpr std::string_view kAppearanceKey = "appearance";

/// The settings that are properties of UIState, by the command that sets them.
struct Choice {
  Command command;
  const std::string& (UIState::*value)() const;
  void (UIState::*set)(std::string);
};
constexpr Choice kChoices[] = {
    {Command::setPaperTone, &UIState::paperTone, &UIState::setPaperTone},
    {Command::setFontDesign, &UIState::fontDesign, &UIState::setFontDesign},
    {Command::setTextSize, &UIState::textSize, &UIState::setTextSize},
    {Command::setMargin, &UIState::margin, &UIState::setMargin},
    {Command::setLanguage, &UIState::language, &UIState::setLanguage},
};

/// The commands that a text field with the keyboard takes before anyone else does.
struct FieldCommand {
  Command command;
  EditCommand edit;
};
constexpr FieldCommand kFieldCommands[] = {
    {Command::undo, EditCommand::undo},   {Command::redo, EditCommand::redo},
    {Command::cut, EditCommand::cut},     {Command::copy, EditCommand::copy},
    {Command::paste, EditCommand::paste}, {Command::selectAll, EditCommand::selectAll},
};

/// The row of a command in a table, or null.
template <class Row, std::size_t Size>
const Row* rowOf(Command command, const Row (&table)[Size]) {
  const auto found = std::ranges::find(table, command, &Row::command);
  return found == std::end(table) ? nullptr : &*found;
}

}  // namespace

void AppDelegate::perform(Command command, std::string_view value) {
  struct Action {
    Command command;
    void (AppDelegate::*act)();
  };
  static constexpr Action kActions[] = {
      {Command::showAbout, &AppDelegate::showAbout},
      {Command::checkForUpdates, &AppDelegate::checkForUpdates},
      {Command::toggleLoginItem, &AppDelegate::toggleLoginItem},
      {Command::quit, &AppDelegate::quit},
      {Command::newTask, &AppDelegate::newTask},
      {Command::copyDay, &AppDelegate::copyDay},
      {Command::pasteTasks, &AppDelegate::pasteTasks},
      {Command::undo, &AppDelegate::undo},
      {Command::redo, &AppDelegate::redo},
      {Command::resetDefaults, &AppDelegate::resetDefaults},
      {Command::minimise, &AppDelegate::minimise},
      {Command::sizeCompact, &AppDelegate::sizeCompact},
      {Command::sizeRegular, &AppDelegate::sizeRegular},
      {Command::sizeLarge, &AppDelegate::sizeLarge},
      {Command::showShortcuts, &AppDelegate::showShortcuts},
      {Command::sendFeedback, &AppDelegate::sendFeedback},
  };
  if (fieldTakes(command)) return;
  if (const Action* action = rowOf(command, kActions)) return (this->*action->act)();
  choose(command, value);
}

bool AppDelegate::fieldTakes(Command command) {
  const FieldCommand* row = rowOf(command, kFieldCommands);
  return row && ports_.window.edit(row->edit);
}

void AppDelegate::choose(Command command, std::string_view value) {
  if (command == Command::setAppearance) return chooseAppearance(value);
  const Choice* choice = rowOf(command, kChoices);
  if (!choice) return;
  (ui_.*choice->set)(std::string(value));
  command == Command::setLanguage ? languageChanged() : updateMarks({MarkGroup::style});
}

void AppDelegate::chooseAppearance(std::string_view value) {
  ports_.preferences.setString(kAppearanceKey, value);
  applyAppearance();
  updateMarks({MarkGroup::appearance});
}

void AppDelegate::applyAppearance() {
  const std::string appearance = ports_.preferences.string(kAppearanceKey).value_or("system");
  const bool dark = appearance == "dark";
  ports_.application.forceAppearance(dark || appearance == "light" ? std::optional(dark) : std::nullopt);
}

void AppDelegate::resetDefaults() {
  ui_.setFontDesign("system");
  ui_.setTextSize("medium");
  ui_.setPaperTone("warm");
  ui_.setMargin("standard");
  chooseAppearance("system");
  sizeRegular();
  ui_.setLanguage("system");
  languageChanged();
}

void AppDelegate::installMenu() {
  menuBar_ =
      buildMenu({.perform = [this](Command command, std::string_view value) { perform(command, value); },
                 .menuWillOpen = [this] { menuWillOpen(); }});
  ports_.menus.install(menuBar_);
}

void AppDelegate::languageChanged() {
  installMenu();
  menuWillOpen();
  updateStatus();
}

void AppDelegate::menuWillOpen() {
  updateMarks({MarkGroup::appearance, MarkGroup::style, MarkGroup::language, MarkGroup::login});
}

void AppDelegate::updateMarks(std::initializer_list<MarkGroup> groups) {
  for (const MarkGroup group : groups) {
    refreshMarks(menuBar_, group, [this](const MenuRow& row) { return isOn(row); });
  }
  ports_.menus.refreshMarks(menuBar_);
}

bool AppDelegate::isOn(const MenuRow& row) const {
  if (row.marks == MarkGroup::login) return ports_.loginItem.status() == LoginItem::Status::enabled;
  if (row.marks == MarkGroup::appearance) {
    return ports_.preferences.string(kAppearanceKey).value_or("system") == row.value;
  }
  const Choice* choice = rowOf(row.command, kChoices);
  return choice && (ui_.*choice->value)() == row.value;
}

}  // namespace brimle
