#include "sample_data.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <random>
#include <span>
#include <string_view>

#include "base/day.h"

namespace brimle::bench {
namespace {

constexpr int kEntriesADay = 8;

using Texts = std::span<const std::string_view>;

constexpr std::string_view kVerbs[] = {"call",  "email",  "buy",   "fix",    "read",  "pay",    "book",
                                       "clean", "return", "water", "send",   "renew", "review", "order",
                                       "print", "plan",   "ring",  "cancel", "move",  "sort"};
constexpr std::string_view kObjects[] = {"the dentist",
                                         "the bank",
                                         "milk and eggs",
                                         "the rent",
                                         "train tickets",
                                         "the kitchen tap",
                                         "mum",
                                         "the plants",
                                         "library books",
                                         "chapter four",
                                         "the tax return",
                                         "the quarterly report",
                                         "a new filter",
                                         "winter coats",
                                         "the car",
                                         "the garden shed",
                                         "photos for Ines",
                                         "the landlord",
                                         "the invoice",
                                         "slides for Tue",
                                         "birthday cards",
                                         "the spare window",
                                         "parcel labels",
                                         "the old bicycle"};
constexpr std::string_view kTails[] = {"",
                                       "",
                                       "",
                                       " before noon",
                                       " after work",
                                       " (ask Tom first)",
                                       " - second reminder",
                                       " and put it on the shared calendar",
                                       " for the weekend away",
                                       " at 18:30"};
/// Texts that are not ASCII, or hold what JSON escapes.
constexpr std::string_view kOthers[] = {"Müll rausbringen und Gläser zurückgeben",
                                        "réserver le café près de l’école",
                                        "llamar a la señora Núñez mañana",
                                        "牛乳とパンを買う",
                                        "給料明細を確認して印刷する",
                                        "회의 자료 보내기",
                                        "把书还给图书馆",
                                        "🎂 for Zoë, candles too 🕯️",
                                        "read \"The Waves\" to page 90",
                                        "clear out C:\\old\\reports"};
constexpr std::string_view kNotes[] = {"ask for a receipt, and whether they deliver on Saturdays",
                                       "two of the small ones, not the large",
                                       "opening hours 9:00-17:00",
                                       "Größe 42, schwarz",
                                       "reference 4471-B, to be quoted in every letter",
                                       "in the blue folder on the desk, under the lamp",
                                       "駅前の店",
                                       "oat, whole, half fat"};

/// Draws from one fixed sequence. Not a distribution of the standard library: those differ between its
/// makers.
class Draw {
 public:
  explicit Draw(std::uint64_t seed) : engine_(seed) {}

  std::size_t below(std::size_t limit) { return engine_() % limit; }
  bool once(std::size_t in) { return below(in) == 0; }
  std::string_view of(Texts texts) { return texts[below(texts.size())]; }

  Uuid id() {
    Uuid id;
    for (auto& byte : id.bytes) byte = static_cast<std::uint8_t>(below(256));
    return id;
  }

  std::string text() {
    if (once(6)) return std::string(of(kOthers));
    std::string text(of(kVerbs));
    text += ' ';
    text += of(kObjects);
    text += of(kTails);
    return text;
  }

  std::vector<std::string> notes() {
    std::vector<std::string> notes;
    if (!once(3)) return notes;
    for (std::size_t count = 1 + below(4); count > 0; --count) notes.emplace_back(of(kNotes));
    return notes;
  }

 private:
  std::mt19937_64 engine_;
};

std::string joined(std::span<const std::string_view> pieces) {
  std::string bytes;
  for (const std::string_view piece : pieces) bytes += piece;
  return bytes;
}

}  // namespace

std::vector<ArchiveDay> sampleDays(int years) {
  Draw draw(1);
  std::vector<ArchiveDay> days(static_cast<std::size_t>(years) * 365);
  std::chrono::sys_days date(*parseDay(kToday));
  for (ArchiveDay& day : days) {
    day.date = dayKey(Day(date -= std::chrono::days(1)));
    for (int entry = 0; entry < kEntriesADay; ++entry) {
      day.items.push_back({draw.id(), draw.text(), !draw.once(7), draw.notes()});
    }
  }
  return days;
}

std::vector<TodoItem> sampleTasks(int count) {
  Draw draw(2);
  std::vector<TodoItem> tasks(static_cast<std::size_t>(count));
  for (TodoItem& task : tasks) {
    task.id = draw.id();
    task.text = draw.text();
    task.repeats = draw.once(5);
    task.pinnedTop = draw.once(8);
    task.highlighted = draw.once(6);
    task.notes = draw.notes();
  }
  return tasks;
}

std::string sampleLines(int count) {
  Draw draw(3);
  std::string lines = draw.text() + '\n';
  for (int line = 1; line < count; ++line) {
    lines += draw.once(5) ? "\t" + std::string(draw.of(kNotes)) : "- " + draw.text();
    lines += '\n';
  }
  return lines;
}

Lists sampleLists(std::vector<ArchiveDay> days) {
  return {sampleTasks(kLiveTasks), Archive(std::move(days)), {}, {}};
}

std::string documentOf(const Lists& lists) {
  return joined(EncodedDayFile(kToday, lists).pieces());
}

const Sample& sample(int years) {
  static std::map<int, Sample> samples;
  Sample& kept = samples[years];
  if (kept.days.empty()) {
    kept.days = sampleDays(years);
    kept.lists = sampleLists(kept.days);
    kept.document = documentOf(kept.lists);
    kept.document.reserve(kept.document.size() + 64);  // as a file is read: with room for the JSON reader
  }
  return kept;
}

}  // namespace brimle::bench
