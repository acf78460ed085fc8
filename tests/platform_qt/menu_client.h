// Shows a menu of the program's as desktops do, by com.canonical.dbusmenu: reads its rows, opens it, clicks.
#pragma once

#include <string>
#include <vector>

#include "platform_qt/neighbour.h"

namespace brimle {

class MenuClient {
 public:
  MenuClient(Neighbour& neighbour, QString path) : neighbour_(neighbour), path_(std::move(path)) {}

  QVariantList ask(const QString& method, const QVariantList& arguments);
  bool isRefused(const QString& method, const QVariantList& arguments);

  /// A line a row, those of submenus deeper: "-", a disabled row in brackets, a mark as "x " or "o " before
  /// its row, and the keys behind it.
  std::vector<std::string> rows();
  /// The number of a row of those that were asked for last.
  int id(std::size_t row) const { return ids_.at(row); }
  /// Whether the menu says that it must be read again.
  bool open(int id = 0) { return ask("AboutToShow", {id}).value(0).toBool(); }
  void click(int id);

  /// How often the menu said that it has other rows.
  int newLayouts() const;
  /// The rows whose properties the menu said are new, each as `rows` has it.
  std::vector<std::string> newRows() const;

 private:
  void addRow(const QVariantList& layout, const std::string& indent, std::vector<std::string>& rows);

  Neighbour& neighbour_;
  const QString path_;
  std::vector<int> ids_;
};

}  // namespace brimle
