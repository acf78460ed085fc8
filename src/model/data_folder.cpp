#include "model/data_folder.h"

namespace brimle {

Path locateDataFolder(Files& files, const Path& supportDirectory) {
  Path folder = supportDirectory / "Brimle";
  const Path predecessor = supportDirectory / "Quorel";
  if (!files.exists(folder) && files.exists(predecessor)) files.rename(predecessor, folder);
  files.createFolders(folder);
  return folder;
}

}  // namespace brimle
