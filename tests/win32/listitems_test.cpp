#include "forms/listitems.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/win32/support/classes.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

using Items = std::vector<std::string>;

struct ListKind {
  const char* className;
  DWORD style;
  UINT count, length, text, reset, add;
};
constexpr ListKind kKinds[] = {
    {"LISTBOX", 0, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_RESETCONTENT, LB_ADDSTRING},
    {"COMBOBOX", CBS_SIMPLE, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_RESETCONTENT, CB_ADDSTRING}};

Items ItemsOf(const ListKind& kind, HWND control) {
  Items items;
  const LRESULT count = SendMessageA(control, kind.count, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    const auto index = static_cast<WPARAM>(i);
    std::string text(static_cast<std::size_t>(SendMessageA(control, kind.length, index, 0)) + 1, '\0');
    SendMessageA(control, kind.text, index, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    items.push_back(text);
  }
  return items;
}

TEST(FillListItems, MakesAnItemOfEachLine) {
  struct Case {
    const char* what;
    std::string text;
    Items items;
  };
  const std::string all31 =
      "a\x01\x02\x03\x04\x05\x06\x07\x08\t\x0B\x0C\r\x0E\x0F\x10\x11\x12\x13\x14\x15\x16\x17"
      "\x18\x19\x1A\x1B\x1C\x1D\x1E\x1F\x7F"
      "b";
  const Case cases[] = {
      {"empty text", "", {}},
      {"one line without line feed", "one", {"one"}},
      {"a line feed at the end adds nothing", "one\n", {"one"}},
      {"two lines", "one\ntwo", {"one", "two"}},
      {"an empty line is an item", "one\n\ntwo", {"one", "", "two"}},
      {"empty lines at both ends", "\none\n\n", {"", "one", ""}},
      {"a line feed alone is one empty item", "\n", {""}},
      {"carriage returns are dropped", "one\r\ntwo\r\n", {"one", "two"}},
      {"a line of a carriage return alone at the end is none", "one\n\r", {"one"}},
      {"all control characters are dropped", all31, {"ab"}},
      {"bytes from 128 up are kept", "\x80\xE4\xFF\n\xA0", {"\x80\xE4\xFF", "\xA0"}},
      {"blanks are kept", "  a  ", {"  a  "}},
  };
  for (const ListKind& kind : kKinds) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(kind.className) + ": " + c.what);
      const TestWindow list(kind.className, "", WS_POPUP | kind.style);
      FillListItems(list.get(), c.text.c_str());
      EXPECT_EQ(ItemsOf(kind, list.get()), c.items);
    }
  }
}

TEST(FillListItems, CutsAnItemTo1024Characters) {
  for (const ListKind& kind : kKinds) {
    for (const int length : {1023, 1024, 1025, 5000}) {
      SCOPED_TRACE(std::string(kind.className) + " " + std::to_string(length));
      const TestWindow list(kind.className, "", WS_POPUP | kind.style);
      const std::string line(static_cast<std::size_t>(length), 'x');
      FillListItems(list.get(), (line + "\nnext").c_str());
      EXPECT_EQ(ItemsOf(kind, list.get()), (Items{line.substr(0, 1024), "next"}));
    }
  }
}

TEST(FillListItems, ReplacesWhatTheListHeld) {
  for (const ListKind& kind : kKinds) {
    SCOPED_TRACE(kind.className);
    const TestWindow list(kind.className, "", WS_POPUP | kind.style);
    FillListItems(list.get(), "one\ntwo");
    FillListItems(list.get(), "three");
    EXPECT_EQ(ItemsOf(kind, list.get()), Items{"three"});
    FillListItems(list.get(), nullptr);
    EXPECT_EQ(ItemsOf(kind, list.get()), Items{});
  }
}

TEST(FillListItems, DrawsOnceAtTheEnd) {
  for (const ListKind& kind : kKinds) {
    SCOPED_TRACE(kind.className);
    const TestWindow parent("STATIC", "", WS_POPUP | WS_VISIBLE);
    const TestWindow list(kind.className, "", WS_CHILD | WS_VISIBLE | kind.style, parent.get());
    ValidateRect(list.get(), nullptr);
    std::vector<UINT> messages;
    {
      const MessageSpy spy;
      FillListItems(list.get(), "one\ntwo");
      for (const SentMessage& sent : spy.sent()) {
        if (sent.window != list.get()) continue;
        if (sent.message == WM_SETREDRAW) {
          messages.push_back(sent.wParam != 0 ? 1u : 0u);
        } else if (sent.message == kind.reset || sent.message == kind.add) {
          messages.push_back(sent.message);
        }
      }
    }
    EXPECT_EQ(messages, (std::vector<UINT>{0, kind.reset, kind.add, kind.add, 1}));
    RECT area = {};
    EXPECT_TRUE(GetUpdateRect(list.get(), &area, FALSE));
  }
}

BOOL CALLBACK Validate(HWND window, LPARAM) {
  ValidateRect(window, nullptr);
  return TRUE;
}

// For the platform no window means all windows when it is told to draw.
TEST(FillListItems, LeavesTheScreenAloneWithoutAControl) {
  const TestWindow other("STATIC", "", WS_POPUP | WS_VISIBLE);
  EnumThreadWindows(GetCurrentThreadId(), Validate, 0);
  FillListItems(nullptr, "one");
  EXPECT_FALSE(GetUpdateRect(other.get(), nullptr, FALSE));
}

}  // namespace
}  // namespace brelt::test
