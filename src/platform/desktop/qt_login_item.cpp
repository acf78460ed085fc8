#include "platform/desktop/qt_login_item.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <array>

#include "platform/application_id.h"
#include "platform/desktop_entry.h"

namespace brimle {
namespace {

constexpr auto kEntry = "autostart/org.brimle.Brimle.desktop";
/// The program's name where its package put it on every PATH.
constexpr auto kName = "brimle";
constexpr std::array kPackageFolders{"/usr/bin", "/bin", "/usr/local/bin"};

constexpr auto kHidden = "Hidden";
/// The same the other way round, as GNOME writes it.
constexpr auto kGnomeEnabled = "X-GNOME-Autostart-enabled";

bool says(const std::string& entry, const char* key, const char* value) {
  return entryValue(entry, key) == value;
}

std::string commandOf(const Path& program) {
  const bool packaged = program.filename() == kName &&
                        std::ranges::find(kPackageFolders, program.parent_path()) != kPackageFolders.end();
  return execValue(packaged ? kName : program.string());
}

std::vector<Path> configFolders() {
  std::vector<Path> folders;
  for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation))
    folders.emplace_back(folder.toStdString());
  return folders;
}

std::string named(std::string entry) {
  entry = withEntryValue(entry, "Type", "Application");
  return withEntryValue(entry, "Name", "Brimle");
}

}  // namespace

QtLoginItem::QtLoginItem(Files& files)
    : QtLoginItem(files, QCoreApplication::applicationFilePath().toStdString(), configFolders()) {}

QtLoginItem::QtLoginItem(Files& files, Path program, const std::vector<Path>& configFolders)
    : files_(files), program_(std::move(program)), own_(configFolders.at(0) / kEntry) {
  for (std::size_t i = 1; i < configFolders.size(); ++i) systemWide_.push_back(configFolders[i] / kEntry);
}

/// Of entries with the same name the first counts, also where it says no.
LoginItem::Status QtLoginItem::status() const {
  std::optional<std::string> entry = files_.read(own_);
  for (const Path& path : systemWide_) {
    if (!entry) entry = files_.read(path);
  }
  const bool enabled = entry && startsProgram(*entry) && !says(*entry, kHidden, "true") &&
                       !says(*entry, kGnomeEnabled, "false");
  return enabled ? Status::enabled : Status::notRegistered;
}

/// A command of the user's own that starts the program, with an argument say, stays.
bool QtLoginItem::add() {
  std::string entry = named(files_.read(own_).value_or(""));
  if (!startsProgram(entry)) entry = withEntryValue(entry, "Exec", commandOf(program_));
  entry = withEntryValue(entry, "Icon", kApplicationId);
  entry = withEntryValue(entry, kHidden, std::nullopt);
  return write(withEntryValue(entry, kGnomeEnabled, std::nullopt));
}

bool QtLoginItem::remove() {
  const auto exists = [this](const Path& path) { return files_.exists(path); };
  if (std::ranges::any_of(systemWide_, exists))
    return write(withEntryValue(named(files_.read(own_).value_or("")), kHidden, "true"));
  return !exists(own_) || files_.remove(own_);
}

bool QtLoginItem::startsProgram(const std::string& entry) const {
  const auto program = programOfExec(entryValue(entry, "Exec").value_or(""));
  if (!program) return false;
  std::error_code absent;
  return *program == kName || *program == program_ || std::filesystem::equivalent(*program, program_, absent);
}

/// An entry is nobody's secret: it has the mode that its kind has everywhere.
bool QtLoginItem::write(const std::string& entry) {
  const bool isNew = !files_.exists(own_);
  if (!files_.createFolders(own_.parent_path()) || !files_.replace(own_, {{entry}})) return false;
  if (isNew)
    QFile::setPermissions(QString::fromStdString(own_.string()),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
  return true;
}

}  // namespace brimle
