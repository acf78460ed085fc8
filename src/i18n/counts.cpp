#include "i18n/counts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "i18n/i18n.h"

namespace brimle::I18n {
namespace {

/// What follows the number, blank included: after exactly 1, and after any other count.
struct CountWords {
  std::string_view code;
  std::string_view one;
  std::string_view many;
};

constexpr CountWords kEnglishWords = {"en", " task", " tasks"};

constexpr CountWords kCountWords[] = {
    {"ja", "件", "件"},          {"ko", "개", "개"},
    {"zh-Hans", "项", "项"},     {"zh-Hant", "項", "項"},
    {"es", " tarea", " tareas"}, {"de", " Aufgabe", " Aufgaben"},
    {"fr", " tâche", " tâches"}, {"it", " attività", " attività"},
    {"nl", " taak", " taken"},   {"pt", " tarefa", " tarefas"},
    {"id", " tugas", " tugas"},
};

}  // namespace

std::string tasksCount(long long count) {
  const auto* found = std::ranges::find(kCountWords, std::string_view(lang()), &CountWords::code);
  const CountWords& words = found == std::end(kCountWords) ? kEnglishWords : *found;
  return std::to_string(count).append(count == 1 ? words.one : words.many);
}

}  // namespace brimle::I18n
