// Numbers of things in words, in the current interface language.
#pragma once

#include <string>

namespace brimle::I18n {

/// A number of tasks as a phrase: "1 task", "3 tasks", by each language's own rule.
std::string tasksCount(long long count);

}  // namespace brimle::I18n
