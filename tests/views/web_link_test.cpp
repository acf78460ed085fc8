// The address that a task's text has in it.
#include "views/web_link.h"

#include <gtest/gtest.h>

#include <ranges>

namespace brimle {
namespace {

TEST(WebLink, IsTheFirstAddressWithoutWhatStandsAroundIt) {
  const std::vector<std::vector<std::string>> rows = {
      {"|https://a.org", "see |http://a.org/b?c=d&e#f|, and https://z.org", "|HTTPS://A.org| Www.b.org",
       "a\n|https://a.org|\tb", "http:// |https://a.org", "xhttps://a.org -|https://b.org",
       "|https://日本.jp"},
      {"|https://a.org:8080/~b/c.d-e_f;g|.", "|https://a.org/|?!.,;:'", "<|https://a.org|>",
       "\"|https://a.org|\"b", "read (|https://a.org/a_(b)|).", "{|https://a.org/[b]|}", "|https://a.org/b(",
       "([|https://a.org|.)].", "|https://a.org/(b|]"},
      {"見て|https://a.org/日本|。", "（|https://a.org/|）、次", "“|https://a.org|”…",
       "«|https://a.org|\u00A0»", "|https://a.org|\u2028b", "|https://a.org|\xFF",
       "https://。 |https://b.org"},
      {"", "a.org", "mailto:a@b.org", "https:/a.org", "https:// a.org", "http://.", "www.", "www. a",
       "www..a", "awww.a.org", "1http://a.org"}};
  for (std::string text : rows | std::views::join) {
    const std::size_t start = text.find('|'), length = text.find('|', start + 1) - start - 1;
    const std::string link = start == text.npos ? "" : text.substr(start + 1, length);
    std::erase(text, '|');
    EXPECT_EQ(firstWebLink(text).value_or(""), link) << text;
  }
  EXPECT_EQ(firstWebLink("(www.a.org)."), "https://www.a.org");
  EXPECT_EQ(firstWebLink("WWW.a.org!"), "https://WWW.a.org");
}

}  // namespace
}  // namespace brimle
