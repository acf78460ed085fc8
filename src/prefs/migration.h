// The settings of the predecessor, taken over once.
#pragma once

#include "platform/preferences_store.h"

namespace brimle {

/// Copies the settings that the standard store lacks from the predecessor's, unless that was done before.
/// Where the predecessor's store cannot be opened nothing is marked as done, and the next launch tries again.
void migrateFromQuorel(PreferencesStore& standard, const PreferencesStore& predecessor);

}  // namespace brimle
