// How a desktop entry is read, changed and given a program.
#include "platform/desktop_entry.h"

#include <gtest/gtest.h>

namespace brimle {
namespace {

constexpr auto kEntry =
    "# Exec=comment\n"
    "Exec=before the group\n"
    "[Desktop Entry]\n"
    "Name=Brimle\n"
    "Name[de]=Brimle!\n"
    "  Hidden \t=  true \r\n"
    "#Exec=comment\n"
    "X-Other=\n"
    "\n"
    "[Desktop Action new]\n"
    "Exec=of the action\n";

TEST(DesktopEntry, TellsTheValuesOfItsGroup) {
  const struct {
    const char *text, *key;
    std::optional<std::string> value;
  } kCases[] = {
      {kEntry, "Name", "Brimle"},
      {kEntry, "Hidden", "true"},
      {kEntry, "X-Other", ""},
      {kEntry, "Exec", std::nullopt},
      {kEntry, "name", std::nullopt},
      {"[Desktop Entry]\nExec=a\nExec=b=c", "Exec", "b=c"},
      {"[Desktop Entry]", "Exec", std::nullopt},
  };
  for (const auto& [text, key, value] : kCases) EXPECT_EQ(entryValue(text, key), value) << text << key;
}

TEST(DesktopEntry, ChangesOneValueAndKeepsTheRest) {
  const struct {
    const char *text, *key;
    std::optional<std::string> value;
    const char* changed;
  } kCases[] = {
      {"# c\n[Desktop Entry]\nA=1\n\n[B]\nA=2\n", "A", "3", "# c\n[Desktop Entry]\nA=3\n\n[B]\nA=2\n"},
      {"[Desktop Entry]\nA=1\n\n[B]\nC=2\n", "C", "3", "[Desktop Entry]\nA=1\nC=3\n\n[B]\nC=2\n"},
      {"[Desktop Entry]\nA=1\nC = 1\nD=1\nC=2\n", "C", "3", "[Desktop Entry]\nA=1\nC=3\nD=1\n"},
      {"[Desktop Entry]\nA=1\nC=1\nA[de]=1\nC=2", "C", std::nullopt, "[Desktop Entry]\nA=1\nA[de]=1\n"},
      {"[Desktop Entry]", "C", "3", "[Desktop Entry]\nC=3\n"},
      {"no entry\nA=1\n", "A", "3", "[Desktop Entry]\nA=3\n"},
  };
  for (const auto& [text, key, value, changed] : kCases)
    EXPECT_EQ(withEntryValue(text, key, value), changed) << text;
}

TEST(DesktopEntry, WritesAProgramSoThatItIsReadBack) {
  const struct {
    const char *program, *exec;
  } kCases[] = {
      {"/opt/brimle-0.1/bin/brimle", "/opt/brimle-0.1/bin/brimle"},
      {"/opt/my apps/brimle", R"("/opt/my apps/brimle")"},
      {"/a\"b`c$d\\e", R"("/a\\"b\\`c\\$d\\\\e")"},
      {"/100% f/brimle", R"("/100%% f/brimle")"},
      {"/it's/~(a)&b;c|d<e>f*g?h#", R"("/it's/~(a)&b;c|d<e>f*g?h#")"},
      {"/tab\there\nline\rback", R"("/tab\there\nline\rback")"},
      {"/Größe/一覧", "/Größe/一覧"},
  };
  for (const auto& [program, exec] : kCases) {
    EXPECT_EQ(execValue(program), exec);
    EXPECT_EQ(programOfExec(exec), program);
  }
}

TEST(DesktopEntry, NamesTheProgramOfACommandLine) {
  const struct {
    const char* exec;
    std::optional<std::string> program;
  } kCases[] = {
      {"brimle %U --x", "brimle"},  {R"(\s"a b" c)", "a b"},    {"env A=1 brimle", "env"},
      {"", std::nullopt},           {R"("")", std::nullopt},    {R"("open)", std::nullopt},
      {R"("open\\)", std::nullopt}, {R"(bad\x)", std::nullopt}, {"bad\\", std::nullopt},
  };
  for (const auto& [exec, program] : kCases) EXPECT_EQ(programOfExec(exec), program) << exec;
}

}  // namespace
}  // namespace brimle
