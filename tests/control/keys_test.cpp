// The key commands of the list and of the archive.
#include "control/control_fixture.h"

namespace brimle {
namespace {

class Keys : public ControlTest {
 protected:
  /// Presses every key, with every set of modifiers, with none, one and two rows selected. The table has a
  /// word for each press that may be used and for which of the three it is, n or y each; * is any modifiers.
  /// A key that has no name in these scripts has no command.
  void expectUse(const char* lists, const std::string& show, std::string_view table) {
    std::map<std::string, std::string> expected, used;
    std::set<int> named;
    for (const auto& [key, code] : kKeys) named.insert(code);
    for (const auto& word : split(table, ' ')) expected[split(word, '=')[0]] = split(word, '=')[1];
    for (const std::string selection : {"", "click:B", "click:B click:shift+A"}) {
      for (unsigned bits = 0; bits < 64; ++bits) {
        std::string held;
        for (unsigned bit = 0; bit < 6; ++bit) held += bits >> bit & 1 ? kModifiers[bit] + "+" : "";
        bool changed = true;
        for (const auto& [key, code] : kKeys) {
          if (changed) start(lists), play(show + selection);
          changed = press(held + key);
          used[held + key] += changed ? 'y' : 'n';
        }
        for (int code = 0; code < 256; ++code) {
          KeyPress unnamed = chord(held + "x");
          unnamed.code = static_cast<KeyCode>(code);
          EXPECT_FALSE(!named.contains(code) && press(unnamed)) << held << code;
        }
      }
    }
    for (const auto& [pressed, uses] : used) {
      const std::string any = "*" + pressed.substr(pressed.rfind('+') + 1);
      const std::string word = expected.contains(any) ? any : pressed;
      EXPECT_EQ(uses, expected.contains(word) ? expected[word] : "nnn") << pressed;
    }
  }
};

TEST_F(Keys, AreUsedWithTheirModifiersOnly) {
  expectUse("A B C", "",
            "space=nyy return=nyn *esc=nyy *back=nyy *del=nyy cmd+a=yyy cmd+c=nyy down=yyy up=yyy "
            "shift+down=yyy shift+up=yyy cmd+down=nyn cmd+up=nyn");
  expectUse("A*# B*#", "", "");  // no task is visible
  expectUse("T | | | 14:A,B,C", "show:archive ",
            "*esc=yyy *back=nyy *del=nyy cmd+a=yyy down=yyy up=yyy shift+down=yyy shift+up=yyy");
  expectUse("T | | | 14:A,B,C", "show:archive search:nothing ", "*esc=yyy *back=nyy *del=nyy");
}

TEST_F(Keys, ChangeTheList) {
  expect("A B+ C+", {"cmd+a space -> A B C @A >C => A+ B+ C+; space -> A B C @A >C => A B C",
                     "click:B click:cmd+Z space -> B Z @Z >Z => A B C+; click:Z space -> Z @Z >Z",
                     "click:B return -> B @B >B edit:B",
                     "click:A click:cmd+C caps+back -> @C >C => B+; click:B del -> @B >B =>",
                     "click:C cmd+up -> C @C >C => A C+ B+; cmd+down cmd+down -> C @C >C => A B+ C+",
                     "cmd+a ctrl+esc -> @A >C focus; !esc -> @A >C focus"});
  expect("A R*# B", {"click:R space -> R @R >R => A R*+# B", "click:A cmd+down -> A @A >A => B R*# A",
                     "click:A cmd+up -> A @A >A"});
}

TEST_F(Keys, WalkAndExtendTheSelection) {
  for (const auto& [lists, show] : kRows) {
    expect(lists, {show + "down -> A @A >A; up -> A @A >A; down down -> C @C >C; down down -> D @D >D",
                   show + "up -> D @D >D; up -> C @C >C", show + "shift+down -> A @A >A",
                   show + "shift+up -> D @D >D",
                   show + "click:B click:shift+C down -> D @D >D; blank: up -> D @D >D",
                   show + "down shift+down shift+down -> A B C @A >C; shift+up -> A B @A >B; down -> C @C >C",
                   show + "click:C shift+up shift+up shift+up -> A B C @C >A",
                   show + "pick:B shift+down -> B C >C; shift+down -> C D >D; pick:B up -> C @C >C",
                   show + "click:R !down !up !shift+down -> R @R >R; pick:B cmd+a -> A B C D @A >D"});
    sel->setRows(shown(), {{idOf("B")}, idOf("R"), idOf("B")});
    play("!shift+up up");
    EXPECT_EQ(selected(), "A @A >A ");
  }
}

TEST_F(Keys, CopyTheSelectedTasksAsTheyAreTyped) {
  start("bank milk+/after/then R*#/n");
  play("edit:bank tab click:milk click:cmd+bank click:cmd+Z cmd+c");  // leaves an empty note
  EXPECT_EQ(pasteboard.text, "bank\nmilk // after // then");
}

TEST_F(Keys, DeleteFromTheArchiveAndLeaveIt) {
  expect("B | | 20:S | 14:X,Y/x 13:V",
         {"click:B show:archive cmd+a click:cmd+X search:X back -> @X >V => B | | 20:S | 14:X",
          "click:B show:archive cmd+a shift+esc -> @X >V; caps+esc -> B @B >B focus"});
}

}  // namespace
}  // namespace brimle
