#include "platform/pending_notifications.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/escape.h"

namespace brimle {
namespace {

using Trigger = NotificationRequest::Trigger;

/// What stands for itself nowhere in a field, and what is written after a backslash instead.
constexpr Escape kEscapes[] = {{'\\', '\\'}, {'\t', 't'}, {'\n', 'n'}};

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t end; (end = text.find(separator)) != text.npos; text.remove_prefix(end + 1)) {
    parts.push_back(text.substr(0, end));
  }
  parts.push_back(text);
  return parts;
}

std::string triggerText(const std::optional<Trigger>& trigger) {
  return trigger ? dayKey(trigger->day) + ' ' + std::to_string(trigger->hour) : "-";
}

std::optional<Trigger> parseTrigger(std::string_view text) {
  const auto parts = split(text, ' ');
  const auto day = parseDay(parts[0]);
  if (!day || parts.size() != 2) return std::nullopt;
  Trigger trigger{*day, 0};
  const char* end = parts[1].data() + parts[1].size();
  const auto [read, error] = std::from_chars(parts[1].data(), end, trigger.hour);
  if (error != std::errc() || read != end || trigger.hour < 0 || trigger.hour > 23) return std::nullopt;
  return trigger;
}

std::optional<NotificationRequest> parseRequest(std::string_view line) {
  const auto fields = split(line, '\t');
  if (fields.size() != 4) return std::nullopt;
  const auto trigger = parseTrigger(fields[0]);
  const auto identifier = unescaped(fields[1], kEscapes), title = unescaped(fields[2], kEscapes),
             body = unescaped(fields[3], kEscapes);
  if ((!trigger && fields[0] != "-") || !identifier || !title || !body) return std::nullopt;
  return NotificationRequest{*identifier, *title, *body, trigger};
}

}  // namespace

PendingNotifications::PendingNotifications(std::string_view bytes) {
  for (const std::string_view line : split(bytes, '\n')) {
    if (auto request = parseRequest(line)) add(std::move(*request));
  }
}

std::string PendingNotifications::bytes() const {
  std::string out;
  for (const NotificationRequest& request : requests_) {
    out += triggerText(request.trigger);
    for (const auto* field : {&request.identifier, &request.title, &request.body}) {
      out += '\t' + escaped(*field, kEscapes);
    }
    out += '\n';
  }
  return out;
}

void PendingNotifications::add(NotificationRequest request) {
  const auto same = std::ranges::find(requests_, request.identifier, &NotificationRequest::identifier);
  if (same == requests_.end()) {
    requests_.push_back(std::move(request));
  } else {
    *same = std::move(request);
  }
}

void PendingNotifications::remove(const std::vector<std::string>& identifiers) {
  const std::set<std::string> removed(identifiers.begin(), identifiers.end());
  std::erase_if(requests_, [&](const auto& request) { return removed.contains(request.identifier); });
}

void PendingNotifications::remove(const NotificationRequest& request) {
  std::erase(requests_, request);
}

void PendingNotifications::dropBefore(Day today) {
  std::erase_if(requests_,
                [&](const auto& request) { return request.trigger && request.trigger->day < today; });
}

const NotificationRequest* PendingNotifications::due(Trigger now, const std::set<std::string>& except) const {
  const auto found = std::ranges::find_if(requests_, [&](const NotificationRequest& request) {
    return request.trigger && request.trigger->day == now.day && request.trigger->hour <= now.hour &&
           !except.contains(request.identifier);
  });
  return found == requests_.end() ? nullptr : &*found;
}

bool PendingNotifications::waitsFor(Day day) const {
  return std::ranges::any_of(
      requests_, [&](const auto& request) { return request.trigger && request.trigger->day == day; });
}

}  // namespace brimle
