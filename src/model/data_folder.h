// Where the task data lives: the folder "Brimle" of the user's application-support directory. A folder left
// by the predecessor, "Quorel", is moved there once.
#pragma once

#include "platform/files.h"

namespace brimle {

/// Finds, moves or makes the data folder and gives its path, whether or not that could be done.
Path locateDataFolder(Files& files, const Path& supportDirectory);

}  // namespace brimle
