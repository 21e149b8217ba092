// Items of lists: AddItem, RemoveItem, Clear, GetList and SetList on every kind of list.
#include <climits>
#include <random>
#include <vector>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/spy.h"

namespace brelt::test {
namespace {

constexpr int32_t kWhole = 0x7FFFFFFF;
constexpr int32_t kId = 101;

struct ListKind {
  const char* name;
  const char* statement;
  bool isCombo;
  bool hasPictures;
};
constexpr ListKind kKinds[] = {
    {"list box", "LISTBOX 101, 0, 0, 90, 90", false, false},
    {"icon list", "CONTROL \"caption\", 101, \"ICONLIST\", 0x0, 0, 0, 90, 90", false, true},
    {"simple combo box", "COMBOBOX 101, 0, 0, 90, 90, CBS_SIMPLE", true, false},
    {"drop-down combo box", "COMBOBOX 101, 0, 0, 90, 90, CBS_DROPDOWN", true, false},
    {"drop-down list", "COMBOBOX 101, 0, 0, 90, 90, CBS_DROPDOWNLIST", true, false},
};

using Items = std::vector<std::string>;

class ListCallsTest : public FormTest {
 protected:
  void TearDown() override {
    SetOptionBase(1);
    FormTest::TearDown();
  }
  // Makes the form anew with one list in it; style is added to the statement.
  void Make(const ListKind& kind, const std::string& style = "") {
    DestroyLibraryWindows();
    const LoadResult form = LoadDialog("Form", std::string("  ") + kind.statement + style + "\n");
    ASSERT_EQ(form.code, RTX_OK) << form.message;
    kind_ = &kind;
    list_ = GetDlgItem(form.window, kId);
    ASSERT_NE(list_, nullptr);
  }
  int Send(UINT listMessage, UINT comboMessage, int wParam = 0, LPARAM lParam = 0) const {
    return static_cast<int>(SendMessageA(list_, kind_->isCombo ? comboMessage : listMessage,
                                         static_cast<WPARAM>(wParam), lParam));
  }
  int Count() const { return Send(LB_GETCOUNT, CB_GETCOUNT); }
  int Selection() const { return Send(LB_GETCURSEL, CB_GETCURSEL); }
  void Select(int index) const { Send(LB_SETCURSEL, CB_SETCURSEL, index); }
  int Data(int index) const { return Send(LB_GETITEMDATA, CB_GETITEMDATA, index); }
  Items ItemsOfList() const {
    Items items;
    for (int i = 0; i < Count(); ++i) {
      std::string text(static_cast<std::size_t>(Send(LB_GETTEXTLEN, CB_GETLBTEXTLEN, i)) + 1, '\0');
      Send(LB_GETTEXT, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
      text.pop_back();
      items.push_back(text);
    }
    return items;
  }
  // Fills the list with one-letter items, past the calls under test.
  void Fill(const std::string& letters) const {
    Send(LB_RESETCONTENT, CB_RESETCONTENT);
    for (const char letter : letters) {
      Send(LB_ADDSTRING, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::string(1, letter).c_str()));
    }
  }
  std::string Letters() const {
    std::string letters;
    for (const std::string& item : ItemsOfList()) letters += item;
    return letters;
  }

  const ListKind* kind_ = nullptr;
  HWND list_ = nullptr;
};

int32_t Add(int32_t index, const std::string& text, const void* picture = nullptr) {
  return AddItem("Form", kId, index, text.c_str(), picture);
}

std::string TextOf(int32_t index, int32_t size = 2000) {
  std::vector<char> buffer(static_cast<std::size_t>(size), 'z');
  EXPECT_EQ(GetList("Form", kId, index, buffer.data(), size, "String"), RTX_OK);
  return buffer.data();
}

// ---- AddItem ----

TEST_F(ListCallsTest, AddItemInsertsAheadOfTheItemWithTheIndex) {
  for (const ListKind& kind : kKinds) {
    for (const int32_t base : {0, 1}) {
      SCOPED_TRACE(std::string(kind.name) + ", base " + std::to_string(base));
      Make(kind);
      SetOptionBase(base);
      struct Case {
        int32_t index;
        const char* items;
      };
      const Case cases[] = {{base, "xabc"},   {base + 1, "axbc"}, {base + 2, "abxc"}, {base + 3, "abcx"},
                            {-1, "abcx"},     {base + 4, "abc"},  {base + 5, "abc"},  {INT_MAX, "abc"},
                            {INT_MIN, "abc"}, {-2, "abc"}};
      for (const Case& c : cases) {
        SCOPED_TRACE(c.index);
        Fill("abc");
        EXPECT_EQ(Add(c.index, "x"), RTX_OK);
        EXPECT_EQ(Letters(), c.items);
      }
      // The index just below the base; with base 0 it is the one that appends.
      Fill("abc");
      EXPECT_EQ(Add(base - 1, "x"), RTX_OK);
      EXPECT_EQ(Letters(), base == 0 ? "abcx" : "abc");
      // An empty list takes its first item at the base.
      Fill("");
      EXPECT_EQ(Add(base + 1, "x"), RTX_OK);
      EXPECT_EQ(Letters(), "");
      EXPECT_EQ(Add(base, "x"), RTX_OK);
      EXPECT_EQ(Letters(), "x");
    }
  }
}

TEST_F(ListCallsTest, AddItemSortsAnAppendedItemAndNotAnInsertedOne) {
  struct Case {
    const ListKind& kind;
    const char* style;
  };
  const ListKind sortedIconList = {"sorted icon list", "CONTROL \"\", 101, \"ICONLIST\", 0x2, 0, 0, 90, 90",
                                   false, true};
  const Case cases[] = {{kKinds[0], ", LBS_SORT"}, {kKinds[2], " | CBS_SORT"}, {sortedIconList, ""}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.kind.name);
    Make(c.kind, c.style);
    static const char pictures[3] = {};
    ASSERT_EQ(Add(-1, "b", &pictures[0]), RTX_OK);
    ASSERT_EQ(Add(-1, "a", &pictures[1]), RTX_OK);
    EXPECT_EQ(Letters(), "ab");
    ASSERT_EQ(Add(3, "A", &pictures[2]), RTX_OK);
    EXPECT_EQ(Letters(), "abA");
    if (c.kind.hasPictures) {
      EXPECT_EQ(Data(0), reinterpret_cast<int>(&pictures[1]));
      EXPECT_EQ(Data(1), reinterpret_cast<int>(&pictures[0]));
      EXPECT_EQ(Data(2), reinterpret_cast<int>(&pictures[2]));
    }
  }
}

TEST_F(ListCallsTest, AddItemCutsTo1024AndThenTakesOneLineEndOff) {
  const std::string x1023(1023, 'x');
  const std::string x1024(1024, 'x');
  struct Case {
    const char* what;
    std::string text;
    std::string item;
  };
  const Case cases[] = {
      {"empty", "", ""},
      {"line feed", "a\n", "a"},
      {"carriage return", "a\r", "a"},
      {"carriage return and line feed", "a\r\n", "a"},
      {"two line feeds", "a\n\n", "a\n"},
      {"two carriage returns", "a\r\r", "a\r"},
      {"line feed and carriage return", "a\n\r", "a\n"},
      {"a line feed alone", "\n", ""},
      {"inside", "a\r\nb", "a\r\nb"},
      {"a tab", "a\tb\t", "a\tb\t"},
      {"characters above 127", "\xE4\xF6\xFF", "\xE4\xF6\xFF"},
      {"1023", x1023, x1023},
      {"1024", x1024, x1024},
      {"1025", x1024 + "y", x1024},
      {"5000", x1024 + std::string(3976, 'y'), x1024},
      {"1023 and a line feed", x1023 + "\n", x1023},
      {"1024 and a line feed", x1024 + "\n", x1024},
      {"a line feed at 1024 and more", x1023 + "\nyyy", x1023},
      {"a carriage return at 1024 and a line feed", x1023 + "\r\n", x1023},
  };
  for (const ListKind& kind : kKinds) {
    Make(kind);
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(kind.name) + ": " + c.what);
      Fill("");
      EXPECT_EQ(Add(-1, c.text), RTX_OK);
      EXPECT_EQ(ItemsOfList(), Items{c.item});
      EXPECT_EQ(Add(1, c.text), RTX_OK);
      EXPECT_EQ(ItemsOfList(), (Items{c.item, c.item}));
    }
  }
}

// The number stays, whichever item has it then.
TEST_F(ListCallsTest, AddItemKeepsTheNumberOfTheSelection) {
  for (const ListKind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    Make(kind);
    for (const int selected : {-1, 0, 1, 2}) {
      for (const int32_t index : {-1, 1, 2, 3, 4}) {
        Fill("abc");
        Select(selected);
        EXPECT_EQ(Add(index, "x"), RTX_OK);
        EXPECT_EQ(Selection(), selected) << "adding at " << index;
      }
    }
    Fill("abc");
    Select(1);
    EXPECT_EQ(Add(9, "x"), RTX_OK);
    EXPECT_EQ(Selection(), 1);
  }
}

TEST_F(ListCallsTest, AddItemLeavesTheTextThatTheUserTyped) {
  for (const ListKind& kind : {kKinds[2], kKinds[3]}) {
    SCOPED_TRACE(kind.name);
    Make(kind);
    Fill("abc");
    SetWindowTextA(list_, "typed");
    for (const int32_t index : {-1, 1, 3}) EXPECT_EQ(Add(index, "x"), RTX_OK);
    char text[20] = "";
    GetWindowTextA(list_, text, sizeof text);
    EXPECT_STREQ(text, "typed");
  }
}

TEST_F(ListCallsTest, AddItemKeepsThePictureOfAnIconListsItemOnly) {
  static const char pictures[3] = {};
  for (const ListKind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    Make(kind);
    ASSERT_EQ(Add(-1, "b", &pictures[0]), RTX_OK);
    ASSERT_EQ(Add(1, "a", &pictures[1]), RTX_OK);
    ASSERT_EQ(Add(3, "c", &pictures[2]), RTX_OK);
    ASSERT_EQ(Add(-1, "d", nullptr), RTX_OK);
    ASSERT_EQ(Letters(), "abcd");
    EXPECT_EQ(Data(0), kind.hasPictures ? reinterpret_cast<int>(&pictures[1]) : 0);
    EXPECT_EQ(Data(1), kind.hasPictures ? reinterpret_cast<int>(&pictures[0]) : 0);
    EXPECT_EQ(Data(2), kind.hasPictures ? reinterpret_cast<int>(&pictures[2]) : 0);
    EXPECT_EQ(Data(3), 0);
  }
}

TEST_F(ListCallsTest, AddItemLeavesTheListAloneOutOfRange) {
  Make(kKinds[1]);
  Fill("abc");
  const MessageSpy spy;
  EXPECT_EQ(Add(5, "x"), RTX_OK);
  EXPECT_TRUE(spy.To(list_, LB_SETCURSEL).empty());
  EXPECT_TRUE(spy.To(list_, LB_SETITEMDATA).empty());
}

// ---- RemoveItem and Clear ----

TEST_F(ListCallsTest, RemoveItemTakesTheItemWithTheIndex) {
  for (const ListKind& kind : kKinds) {
    for (const int32_t base : {0, 1}) {
      SCOPED_TRACE(std::string(kind.name) + ", base " + std::to_string(base));
      Make(kind);
      SetOptionBase(base);
      struct Case {
        int32_t index;
        const char* items;
      };
      const Case cases[] = {{base, "bc"},      {base + 1, "ac"},  {base + 2, "ab"}, {base + 3, "abc"},
                            {base - 1, "abc"}, {base - 2, "abc"}, {INT_MAX, "abc"}, {INT_MIN, "abc"}};
      for (const Case& c : cases) {
        SCOPED_TRACE(c.index);
        Fill("abc");
        EXPECT_EQ(RemoveItem("Form", kId, c.index), RTX_OK);
        EXPECT_EQ(Letters(), c.items);
      }
      Fill("");
      EXPECT_EQ(RemoveItem("Form", kId, base), RTX_OK);
    }
  }
}

TEST_F(ListCallsTest, RemoveItemOfTheSelectedOneSelectsTheNextOrTheLast) {
  for (const ListKind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    Make(kind);
    struct Case {
      const char* items;
      int selected;
      int32_t removed;
      int selectedThen;
    };
    const Case cases[] = {{"abc", 0, 1, 0},   {"abc", 1, 2, 1}, {"abc", 2, 3, 1}, {"ab", 1, 2, 0},
                          {"a", 0, 1, -1},    {"abc", 0, 2, 0}, {"abc", 0, 3, 0}, {"abc", -1, 1, -1},
                          {"abc", -1, 3, -1}, {"abc", 2, 9, 2}, {"abc", 2, 0, 2}, {"abc", -1, 9, -1},
                          {"abc", -1, 0, -1}};
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(c.items) + ", selected " + std::to_string(c.selected) + ", removing " +
                   std::to_string(c.removed));
      Fill(c.items);
      Select(c.selected);
      EXPECT_EQ(RemoveItem("Form", kId, c.removed), RTX_OK);
      EXPECT_EQ(Selection(), c.selectedThen);
    }
  }
}

TEST_F(ListCallsTest, RemoveItemOutOfRangeTouchesNothing) {
  for (const ListKind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    Make(kind);
    Fill("abc");
    const MessageSpy spy;
    for (const int32_t index : {0, 4, -1, INT_MIN, INT_MAX})
      EXPECT_EQ(RemoveItem("Form", kId, index), RTX_OK);
    for (const UINT message : {LB_DELETESTRING, LB_SETCURSEL, CB_DELETESTRING, CB_SETCURSEL}) {
      EXPECT_TRUE(spy.To(list_, message).empty());
    }
  }
}

TEST_F(ListCallsTest, ClearEmptiesTheList) {
  for (const ListKind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    Make(kind);
    Fill("abc");
    Select(1);
    EXPECT_EQ(Clear("Form", kId), RTX_OK);
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Selection(), -1);
    EXPECT_EQ(Clear("Form", kId), RTX_OK);
    ASSERT_EQ(Add(-1, "x"), RTX_OK);
    EXPECT_EQ(Letters(), "x");
  }
}

// ---- SetList and GetList beside them ----

TEST_F(ListCallsTest, SetListReplacesAnItemInItsPlace) {
  static const char picture = 0;
  for (const ListKind& kind : kKinds) {
    for (const int32_t base : {0, 1}) {
      SCOPED_TRACE(std::string(kind.name) + ", base " + std::to_string(base));
      Make(kind);
      SetOptionBase(base);
      Fill("abc");
      for (int i = 0; i < 3; ++i) {
        Send(LB_SETITEMDATA, CB_SETITEMDATA, i, reinterpret_cast<LPARAM>(&picture));
      }
      Select(1);
      for (const int32_t index : {base - 1, base + 3, INT_MIN, -9}) {
        EXPECT_EQ(SetList("Form", kId, index, "x", "String"), RTX_OK);
        EXPECT_EQ(Letters(), "abc");
      }
      EXPECT_EQ(SetList("Form", kId, base + 1, "x\r\n", "String"), RTX_OK);
      EXPECT_EQ(Letters(), "axc");
      EXPECT_EQ(SetList("Form", kId, base + 2, "y", "string"), RTX_OK);
      EXPECT_EQ(SetList("Form", kId, base, "z", "STRING"), RTX_OK);
      EXPECT_EQ(Letters(), "zxy");
      EXPECT_EQ(Selection(), 1);
      for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Data(i), kind.hasPictures ? reinterpret_cast<int>(&picture) : 0);
        EXPECT_EQ(TextOf(base + i), std::string("zxy").substr(static_cast<std::size_t>(i), 1));
      }
    }
  }
}

// ---- Ten thousand operations against a plain model ----

struct ListModel {
  Items items;
  std::vector<int> pictures;
  int selection = -1;

  int Count() const { return static_cast<int>(items.size()); }
  void Insert(int place, const std::string& text, int picture) {
    items.insert(items.begin() + place, text);
    pictures.insert(pictures.begin() + place, picture);
  }
  void Remove(int place) {
    items.erase(items.begin() + place);
    pictures.erase(pictures.begin() + place);
    if (selection > place || selection == Count()) --selection;
  }
  void Reset() { *this = ListModel(); }
  std::string Whole() const {
    std::string text;
    for (const std::string& item : items) text += item + "\n";
    return text;
  }
};

class ListModelTest : public ListCallsTest {
 protected:
  // Some index: mostly one in the list or next to it.
  int32_t AnyIndex() {
    return static_cast<int32_t>(random_() % static_cast<unsigned>(model_.Count() + 4)) - 2 + base_;
  }
  std::string AnyText() {
    static const char letters[] = "abc xyz\t,&\xE4\xFF";
    std::string text;
    for (unsigned length = random_() % 12; length > 0; --length)
      text += letters[random_() % (sizeof letters - 1)];
    return text;
  }
  bool Holds(int32_t index) const { return index >= base_ && index < base_ + model_.Count(); }

  void Step() {
    const int32_t index = AnyIndex();
    const int place = index - base_;
    const std::string text = AnyText();
    switch (random_() % 16) {
      case 0:
        if (random_() % 8 == 0) {
          ASSERT_EQ(Clear("Form", kId), RTX_OK);
          model_.Reset();
        }
        break;
      case 1:
      case 2:
      case 3:
        ASSERT_EQ(RemoveItem("Form", kId, index), RTX_OK);
        if (Holds(index)) model_.Remove(place);
        break;
      case 4:
        ASSERT_EQ(SetListIndex("Form", kId, Holds(index) ? index : -1), RTX_OK);
        model_.selection = Holds(index) ? place : -1;
        break;
      case 5:
      case 6:
        ASSERT_EQ(SetList("Form", kId, index, text.c_str(), "String"), RTX_OK);
        if (Holds(index)) {
          model_.items[static_cast<std::size_t>(place)] = text;
          if (!kind_->hasPictures) model_.pictures[static_cast<std::size_t>(place)] = 0;
        }
        break;
      case 7:
        if (random_() % 8 == 0) SetWhole();
        break;
      default:
        ASSERT_EQ(AddItem("Form", kId, index, (text + "\r\n").c_str(), Picture()), RTX_OK);
        if (index == -1) {
          model_.Insert(model_.Count(), text, PictureInModel());
        } else if (place >= 0 && place <= model_.Count()) {
          model_.Insert(place, text, PictureInModel());
        }
        break;
    }
  }
  void SetWhole() {
    model_.Reset();
    std::string lines;
    for (unsigned count = random_() % 6; count > 0; --count) {
      std::string line = "line " + std::to_string(random_() % 100);
      model_.Insert(model_.Count(), line, 0);
      lines += line + "\n";
    }
    ASSERT_EQ(SetList("Form", kId, kWhole, lines.c_str(), "String"), RTX_OK);
  }
  void Check() {
    int32_t count = -1;
    int32_t index = -9;
    ASSERT_EQ(GetListCount("Form", kId, &count), RTX_OK);
    ASSERT_EQ(count, model_.Count());
    ASSERT_EQ(GetListIndex("Form", kId, &index), RTX_OK);
    ASSERT_EQ(index, model_.selection < 0 ? -1 : model_.selection + base_);
    ASSERT_EQ(TextOf(kWhole, 20000), model_.Whole());
    const int32_t some = AnyIndex();
    ASSERT_EQ(TextOf(some), Holds(some) ? model_.items[static_cast<std::size_t>(some - base_)] : "");
    for (int i = 0; i < count; ++i) ASSERT_EQ(Data(i), model_.pictures[static_cast<std::size_t>(i)]);
  }

  const void* Picture() { return reinterpret_cast<const void*>(++picture_); }
  int PictureInModel() const { return kind_->hasPictures ? picture_ : 0; }

  std::mt19937 random_{20240611};
  ListModel model_;
  int32_t base_ = 0;
  int picture_ = 1000;
};

TEST_F(ListModelTest, EveryKindOfListBehavesLikeAPlainList) {
  for (const ListKind& kind : kKinds) {
    for (const int32_t base : {0, 1}) {
      ASSERT_NO_FATAL_FAILURE(Make(kind));
      SetOptionBase(base);
      base_ = base;
      model_.Reset();
      for (int step = 0; step < 1000; ++step) {
        SCOPED_TRACE(std::string(kind.name) + ", base " + std::to_string(base) + ", step " +
                     std::to_string(step));
        ASSERT_NO_FATAL_FAILURE(Step());
        ASSERT_NO_FATAL_FAILURE(Check());
        // Keeps the list short, so that both its ends stay in play.
        while (model_.Count() > 12) {
          ASSERT_EQ(RemoveItem("Form", kId, base), RTX_OK);
          model_.Remove(0);
        }
      }
    }
  }
}

}  // namespace
}  // namespace brelt::test
