// The LoginItem port as an XDG autostart entry (Desktop Application Autostart Specification): the file
// autostart/org.brimle.Brimle.desktop in the user's configuration folder, or else in one of the system's. It
// is read anew whenever the status is asked for. Nothing else is written.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/login_item.h"

namespace brimle {

class QtLoginItem : public LoginItem {
 public:
  /// Starts the running program, by the XDG base directories. `files` must outlive this.
  explicit QtLoginItem(Files& files);
  /// `program` is the absolute path of what is to be started, `configFolders` the user's own folder and after
  /// it those of the system, the most important first.
  QtLoginItem(Files& files, Path program, const std::vector<Path>& configFolders);

  Status status() const override;
  bool add() override;
  bool remove() override;

 private:
  bool startsProgram(const std::string& entry) const;
  bool write(const std::string& entry);

  Files& files_;
  const Path program_;
  Path own_;                      ///< the user's entry
  std::vector<Path> systemWide_;  ///< the entries that count where the user has none
};

}  // namespace brimle
