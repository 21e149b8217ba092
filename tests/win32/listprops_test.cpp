// List, ListCount and ListIndex.
#include <climits>
#include <cstring>
#include <string>
#include <vector>

#include "tests/support/guarded.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

constexpr int32_t kWhole = 0x7FFFFFFF;

struct ListKind {
  int32_t id;
  UINT count, getSelection, setSelection, insert, getData, setData;
  const char* mark;
};
#define LIST_MESSAGES LB_GETCOUNT, LB_GETCURSEL, LB_SETCURSEL, LB_INSERTSTRING, LB_GETITEMDATA, LB_SETITEMDATA
#define COMBO_MESSAGES \
  CB_GETCOUNT, CB_GETCURSEL, CB_SETCURSEL, CB_INSERTSTRING, CB_GETITEMDATA, CB_SETITEMDATA
constexpr ListKind kKinds[] = {
    {kListBox, LIST_MESSAGES, "<ListBox text too long>"},
    {kIconList, LIST_MESSAGES, "<IconList text too long>"},
    {kDropDown, COMBO_MESSAGES, "<ComboBox text too long>"},
    {kSimple, COMBO_MESSAGES, "<ComboBox text too long>"},
    {kDropDownList, COMBO_MESSAGES, "<ComboBox text too long>"},
};

class ListPropsTest : public PropertyTest {
 protected:
  // Runs a test for each kind of list with each option base; the list holds three items and has none
  // selected.
  template <typename Test>
  void ForEachList(Test test) {
    for (const ListKind& kind : kKinds) {
      for (const int32_t base : {0, 1}) {
        SCOPED_TRACE("control " + std::to_string(kind.id) + " with base " + std::to_string(base));
        SetOptionBase(base);
        ASSERT_EQ(SetList(kFormName, kind.id, kWhole, "one\ntwo\nthree\n", "String"), RTX_OK);
        test(kind, base);
      }
    }
  }

  static std::string Item(int32_t id, int32_t index) {
    char text[2048];
    std::memset(text, 'x', sizeof text);
    EXPECT_EQ(GetList(kFormName, id, index, text, sizeof text, "String"), RTX_OK);
    return text;
  }
  static std::string Whole(int32_t id) { return Item(id, kWhole); }
  static int32_t Count(int32_t id) {
    int32_t count = -77;
    EXPECT_EQ(GetListCount(kFormName, id, &count), RTX_OK);
    return count;
  }
  static int32_t Index(int32_t id) {
    int32_t index = -77;
    EXPECT_EQ(GetListIndex(kFormName, id, &index), RTX_OK);
    return index;
  }
  LRESULT Send(const ListKind& kind, UINT message, int wParam = 0, LPARAM lParam = 0) const {
    return SendMessageA(Control(kind.id), message, static_cast<WPARAM>(wParam), lParam);
  }
};

// ---- Count and index ----

TEST_F(ListPropsTest, CountIsTheNumberOfItems) {
  ForEachList([&](const ListKind& kind, int32_t) {
    EXPECT_EQ(Count(kind.id), 3);
    ASSERT_EQ(SetList(kFormName, kind.id, kWhole, "", "String"), RTX_OK);
    EXPECT_EQ(Count(kind.id), 0);
  });
}

LRESULT CALLBACK RefuseCount(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == LB_GETCOUNT || message == CB_GETCOUNT) return LB_ERR;
  const auto before = reinterpret_cast<WNDPROC>(GetPropA(window, "before"));
  return CallWindowProcA(before, window, message, wParam, lParam);
}

// Puts a procedure in front of a control's own, which it finds as the property "before".
class Subclass {
 public:
  Subclass(HWND window, WNDPROC procedure) : window_(window) {
    before_ = GetWindowLongA(window, GWL_WNDPROC);
    SetPropA(window, "before", reinterpret_cast<HANDLE>(before_));
    SetWindowLongA(window, GWL_WNDPROC, reinterpret_cast<LONG>(procedure));
  }
  Subclass(const Subclass&) = delete;
  Subclass& operator=(const Subclass&) = delete;
  ~Subclass() {
    SetWindowLongA(window_, GWL_WNDPROC, before_);
    RemovePropA(window_, "before");
  }

 private:
  HWND window_;
  LONG before_;
};

TEST_F(ListPropsTest, CountOfAListThatReportsAnErrorIsZero) {
  ForEachList([&](const ListKind& kind, int32_t) {
    const Subclass refusing(Control(kind.id), RefuseCount);
    EXPECT_EQ(Count(kind.id), 0);
    EXPECT_EQ(Whole(kind.id), "");
  });
}

TEST_F(ListPropsTest, IndexWithoutSelectionIsMinusOneWithEitherBase) {
  ForEachList([&](const ListKind& kind, int32_t) { EXPECT_EQ(Index(kind.id), -1); });
}

TEST_F(ListPropsTest, IndexCountsFromTheBase) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    for (int item = 0; item < 3; ++item) {
      Send(kind, kind.setSelection, item);
      EXPECT_EQ(Index(kind.id), item + base);
    }
  });
}

TEST_F(ListPropsTest, SettingTheIndexTakesTheBaseOffExceptFromMinusOne) {
  struct Case {
    int32_t index;  // less the base
    int32_t sent;
    int32_t selected;
  };
  ForEachList([&](const ListKind& kind, int32_t base) {
    for (const Case& c : {Case{0, 0, 0}, Case{2, 2, 2}, Case{3, 3, -1}, Case{1000000, 1000000, -1}}) {
      SCOPED_TRACE(c.index);
      Send(kind, kind.setSelection, -1);
      const MessageSpy spy;
      EXPECT_EQ(SetListIndex(kFormName, kind.id, c.index + base), RTX_OK);
      const auto sent = spy.To(Control(kind.id), kind.setSelection);
      ASSERT_EQ(sent.size(), 1u);
      EXPECT_EQ(static_cast<int32_t>(sent[0].wParam), c.sent);
      EXPECT_EQ(Send(kind, kind.getSelection), c.selected);
    }
    Send(kind, kind.setSelection, 1);
    EXPECT_EQ(SetListIndex(kFormName, kind.id, -1), RTX_OK);
    EXPECT_EQ(Send(kind, kind.getSelection), -1);
    for (const int32_t wild : {INT_MIN, INT_MAX}) {
      EXPECT_EQ(SetListIndex(kFormName, kind.id, wild), RTX_OK);
      EXPECT_EQ(Index(kind.id), -1);
    }
  });
}

// ---- Reading texts ----

TEST_F(ListPropsTest, TheWholeListIsEachItemWithALineFeed) {
  ForEachList([&](const ListKind& kind, int32_t) {
    EXPECT_EQ(Whole(kind.id), "one\ntwo\nthree\n");
    SetList(kFormName, kind.id, kWhole, "\n\n", "String");
    EXPECT_EQ(Whole(kind.id), "\n\n");
    SetList(kFormName, kind.id, kWhole, "", "String");
    EXPECT_EQ(Whole(kind.id), "");
  });
}

// What a buffer of some size gets, with the bytes around it looked at.
std::string Read(int32_t id, int32_t index, int32_t size, const char* type = "String") {
  GuardedBuffer buffer(size);
  EXPECT_EQ(GetList(kFormName, id, index, buffer.data(), size, type), RTX_OK);
  EXPECT_TRUE(buffer.IsIntact());
  EXPECT_TRUE(buffer.IsZeroBehindText());
  return buffer.Text();
}

TEST_F(ListPropsTest, AWholeListThatDoesntFitGivesTheMarkOfItsKindCutToTheBuffer) {
  const std::string text = "one\ntwo\nthree\n";
  const auto exact = static_cast<int32_t>(text.size()) + 1;
  ForEachList([&](const ListKind& kind, int32_t) {
    const std::string mark = kind.mark;
    EXPECT_EQ(Read(kind.id, kWhole, exact + 1), text);
    EXPECT_EQ(Read(kind.id, kWhole, exact), text);
    for (const int32_t size : {exact - 1, 9, 8, 5, 4, 2, 1}) {
      SCOPED_TRACE(size);
      EXPECT_EQ(Read(kind.id, kWhole, size), mark.substr(0, static_cast<std::size_t>(size) - 1));
    }
    for (const int32_t size : {0, -1, INT_MIN}) EXPECT_EQ(Read(kind.id, kWhole, size), "");
    // A longer list shows the whole mark, and nothing of the items that fitted.
    const std::string longer = std::string(30, 'x') + "\n" + std::string(60, 'x');
    SetList(kFormName, kind.id, kWhole, longer.c_str(), "String");
    EXPECT_EQ(Read(kind.id, kWhole, 50), mark);
  });
}

TEST_F(ListPropsTest, AnItemCountsFromTheBaseAndOutOfRangeIsEmpty) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    EXPECT_EQ(Item(kind.id, base), "one");
    EXPECT_EQ(Item(kind.id, base + 2), "three");
    for (const int32_t index : {base - 1, base + 3, -1, -100, INT_MIN, INT_MAX - 1}) {
      SCOPED_TRACE(index);
      EXPECT_EQ(Item(kind.id, index), "");
    }
  });
}

TEST_F(ListPropsTest, AnItemNotShorterThanTheBufferGivesTheMark) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    const std::string mark = kind.mark;
    EXPECT_EQ(Read(kind.id, base + 2, 7), "three");
    EXPECT_EQ(Read(kind.id, base + 2, 6), "three");
    EXPECT_EQ(Read(kind.id, base + 2, 5), mark.substr(0, 4));
    EXPECT_EQ(Read(kind.id, base + 2, 1), "");
    EXPECT_EQ(Read(kind.id, base + 2, 0), "");
    EXPECT_EQ(Read(kind.id, base + 2, -1), "");
    EXPECT_EQ(Read(kind.id, base + 3, 5), "");
    const std::string longer(100, 'y');
    SetList(kFormName, kind.id, base, longer.c_str(), "String");
    EXPECT_EQ(Read(kind.id, base, 101), longer);
    EXPECT_EQ(Read(kind.id, base, 100), mark);
  });
}

// ---- Types ----

TEST_F(ListPropsTest, ATypeIsKnownInAnyCaseAndAnyOtherIsRefused) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    EXPECT_EQ(Read(kind.id, base, 20, "STRING"), "one");
    EXPECT_EQ(SetList(kFormName, kind.id, base, "uno", "string"), RTX_OK);
    EXPECT_EQ(Read(kind.id, base, 20, "sTrInG"), "uno");
    for (const char* type : {"", "Strings", "Strin", "Integer", "Tbitmap "}) {
      SCOPED_TRACE(type);
      for (const int32_t index : {base, kWhole, -1}) {
        char text[8] = "unset";
        EXPECT_EQ(GetList(kFormName, kind.id, index, text, sizeof text, type), RTX_WRONG_KIND);
        EXPECT_STREQ(text, "");
        EXPECT_EQ(SetList(kFormName, kind.id, index, "x", type), RTX_WRONG_KIND);
        EXPECT_EQ(SetList(kFormName, kind.id, index, nullptr, type), RTX_WRONG_KIND);
      }
    }
    EXPECT_EQ(Whole(kind.id), "uno\ntwo\nthree\n");
  });
}

TEST_F(ListPropsTest, ANullTextIsRefusedAheadOfTheWindowAndANullPictureIsNot) {
  EXPECT_EQ(SetList("nobody", kListBox, 1, nullptr, "String"), RTX_NULL_ARG);
  EXPECT_EQ(SetList("nobody", kListBox, 1, nullptr, "Tbitmap"), RTX_NO_WINDOW);
  EXPECT_EQ(SetList(kFormName, kListBox, 1, nullptr, "string"), RTX_NULL_ARG);
  EXPECT_EQ(SetList(kFormName, kPush, 1, nullptr, "String"), RTX_NULL_ARG);
  EXPECT_EQ(SetList(kFormName, kPush, 1, nullptr, "Tbitmap"), RTX_WRONG_KIND);
  EXPECT_EQ(SetList(kFormName, kIconList, 1, nullptr, "Tbitmap"), RTX_OK);
}

// ---- Writing texts ----

TEST_F(ListPropsTest, TheWholeListIsReplacedAndPainted) {
  ShowForm();
  ForEachList([&](const ListKind& kind, int32_t) {
    const MessageSpy spy;
    EXPECT_EQ(SetList(kFormName, kind.id, kWhole, "four\r\n\nfi\tve", "String"), RTX_OK);
    EXPECT_EQ(Whole(kind.id), "four\n\nfive\n");
    EXPECT_GE(PaintingOf(spy, Control(kind.id)).paints, 1);
    EXPECT_GE(PaintingOf(spy, Control(kind.id)).erasures, 1);
  });
}

TEST_F(ListPropsTest, AnItemIsReplacedInItsPlaceAndPainted) {
  ShowForm();
  ForEachList([&](const ListKind& kind, int32_t base) {
    const MessageSpy spy;
    EXPECT_EQ(SetList(kFormName, kind.id, base + 1, "zwei", "String"), RTX_OK);
    EXPECT_EQ(Whole(kind.id), "one\nzwei\nthree\n");
    EXPECT_EQ(Index(kind.id), -1);
    EXPECT_GE(PaintingOf(spy, Control(kind.id)).paints, 1);
    EXPECT_EQ(SetList(kFormName, kind.id, base, "zzz", "String"), RTX_OK);
    EXPECT_EQ(SetList(kFormName, kind.id, base + 2, "", "String"), RTX_OK);
    EXPECT_EQ(Whole(kind.id), "zzz\nzwei\n\n");
  });
}

TEST_F(ListPropsTest, ReplacingAnItemKeepsTheSelection) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    for (int selected = 0; selected < 3; ++selected) {
      for (int replaced = 0; replaced < 3; ++replaced) {
        SCOPED_TRACE(std::to_string(selected) + " selected, " + std::to_string(replaced) + " replaced");
        Send(kind, kind.setSelection, selected);
        EXPECT_EQ(SetList(kFormName, kind.id, replaced + base, "new", "String"), RTX_OK);
        EXPECT_EQ(Send(kind, kind.getSelection), selected);
        EXPECT_EQ(Count(kind.id), 3);
      }
    }
  });
}

// A combo box empties its field when it is told that nothing is selected.
TEST_F(ListPropsTest, ReplacingAnItemKeepsWhatWasTyped) {
  for (const int32_t id : {int32_t{kDropDown}, int32_t{kSimple}}) {
    SetList(kFormName, id, kWhole, "one\ntwo", "String");
    SetCombotext(kFormName, id, "typed");
    EXPECT_EQ(SetList(kFormName, id, 1, "uno", "String"), RTX_OK);
    char text[20] = "";
    GetCombotext(kFormName, id, text, sizeof text);
    EXPECT_STREQ(text, "typed");
  }
}

TEST_F(ListPropsTest, AnIndexOutOfRangeChangesNothing) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    for (const int32_t index : {base - 1, base + 3, -1, -2, INT_MIN, INT_MAX - 1}) {
      SCOPED_TRACE(index);
      EXPECT_EQ(SetList(kFormName, kind.id, index, "new", "String"), RTX_OK);
      EXPECT_EQ(Whole(kind.id), "one\ntwo\nthree\n");
    }
  });
}

TEST_F(ListPropsTest, ANewTextIsCutTo1024AndLosesOneLineFeedAndThenOneCarriageReturn) {
  const std::string filler(1023, 'x');
  struct Case {
    std::string text;
    std::string kept;
  };
  const Case cases[] = {
      {"a\r\n", "a"},
      {"a\n", "a"},
      {"a\r", "a"},
      {"a\n\r", "a\n"},
      {"a\n\n", "a\n"},
      {"a\r\r\n", "a\r"},
      {"\r\n", ""},
      {"a\r\nb", "a\r\nb"},
      {"a\tb", "a\tb"},
      {filler + "y\n", filler + "y"},
      {filler + "\nz", filler},
      {filler + "\r\n", filler},
      {filler + "yz", filler + "y"},
  };
  ForEachList([&](const ListKind& kind, int32_t base) {
    for (const Case& c : cases) {
      SCOPED_TRACE(c.text);
      EXPECT_EQ(SetList(kFormName, kind.id, base, c.text.c_str(), "String"), RTX_OK);
      EXPECT_EQ(Item(kind.id, base), c.kept);
    }
  });
}

TEST_F(ListPropsTest, AReplacedItemHasDataZeroAndInAnIconListItsPicture) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    Send(kind, kind.setData, 1, 1234);
    EXPECT_EQ(SetList(kFormName, kind.id, base + 1, "new", "String"), RTX_OK);
    EXPECT_EQ(Send(kind, kind.getData, 1), kind.id == kIconList ? 1234 : 0);
    EXPECT_EQ(Send(kind, kind.getData, 0), 0);
    EXPECT_EQ(Send(kind, kind.getData, 2), 0);
  });
}

TEST_F(ListPropsTest, ASortedListIsntSortedAnewByAReplacement) {
  const LoadResult other = LoadDialog("Other",
                                      "  LISTBOX 100, 0, 0, 40, 40, LBS_SORT | LBS_HASSTRINGS\n"
                                      "  COMBOBOX 101, 50, 0, 40, 40, CBS_SIMPLE | CBS_SORT");
  ASSERT_EQ(other.code, RTX_OK);
  for (const int32_t id : {100, 101}) {
    SetList("Other", id, kWhole, "b\na\nc", "String");
    EXPECT_EQ(SetList("Other", id, 1, "z", "String"), RTX_OK);
    char text[20] = "";
    EXPECT_EQ(GetList("Other", id, kWhole, text, sizeof text, "String"), RTX_OK);
    EXPECT_STREQ(text, "z\nb\nc\n");
  }
}

LRESULT CALLBACK RefuseInsertion(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == LB_INSERTSTRING || message == CB_INSERTSTRING) return LB_ERRSPACE;
  const auto before = reinterpret_cast<WNDPROC>(GetPropA(window, "before"));
  return CallWindowProcA(before, window, message, wParam, lParam);
}

TEST_F(ListPropsTest, AListThatTakesNoFurtherItemLosesNone) {
  ForEachList([&](const ListKind& kind, int32_t base) {
    Send(kind, kind.setSelection, 1);
    {
      const Subclass refusing(Control(kind.id), RefuseInsertion);
      EXPECT_EQ(SetList(kFormName, kind.id, base + 1, "new", "String"), RTX_OK);
    }
    EXPECT_EQ(Whole(kind.id), "one\ntwo\nthree\n");
    EXPECT_EQ(Send(kind, kind.getSelection), 1);
  });
}

// ---- Pictures ----

TEST_F(ListPropsTest, APictureIsKeptByAnIconListAloneAndNotForTheWholeList) {
  const std::string picture = PackedPicture(3, 2, 'p');
  ForEachList([&](const ListKind& kind, int32_t base) {
    char buffer[100] = "unset";
    EXPECT_EQ(SetList(kFormName, kind.id, kWhole, picture.data(), "Tbitmap"), RTX_WRONG_KIND);
    EXPECT_EQ(GetList(kFormName, kind.id, kWhole, buffer, sizeof buffer, "Tbitmap"), RTX_WRONG_KIND);
    EXPECT_EQ(buffer[0], '\0');
    const int32_t code = kind.id == kIconList ? RTX_OK : RTX_WRONG_KIND;
    EXPECT_EQ(SetList(kFormName, kind.id, base, picture.data(), "Tbitmap"), code);
    EXPECT_EQ(GetList(kFormName, kind.id, base, buffer, sizeof buffer, "Tbitmap"), code);
    EXPECT_EQ(Send(kind, kind.getData, 0),
              kind.id == kIconList ? reinterpret_cast<LRESULT>(picture.data()) : 0);
  });
}

TEST_F(ListPropsTest, APictureIsCopiedIfItFitsAndElseTheBufferIsZero) {
  ShowForm();
  const std::string picture = PackedPicture(3, 2, 'p');
  const auto exact = static_cast<int32_t>(picture.size());
  for (const int32_t base : {0, 1}) {
    SetOptionBase(base);
    SetList(kFormName, kIconList, kWhole, "one\ntwo", "String");
    {
      const MessageSpy spy;
      EXPECT_EQ(SetList(kFormName, kIconList, base + 1, picture.data(), "tBITMAP"), RTX_OK);
      EXPECT_GE(PaintingOf(spy, Control(kIconList)).paints, 1);
    }
    for (const int32_t size : {INT_MIN, -1, 0, 1, 40, exact - 1, exact, exact + 20}) {
      SCOPED_TRACE(size);
      GuardedBuffer buffer(size);
      EXPECT_EQ(GetList(kFormName, kIconList, base + 1, buffer.data(), size, "Tbitmap"), RTX_OK);
      EXPECT_TRUE(buffer.IsIntact());
      if (size < 1) continue;
      const auto length = static_cast<std::size_t>(size);
      std::string expected = size >= exact ? picture : "";
      expected.resize(length, '\0');
      EXPECT_EQ(std::string(buffer.data(), length), expected);
    }
    // Its text stays, and so does the picture when the text is replaced.
    SetList(kFormName, kIconList, base + 1, "zwei", "String");
    EXPECT_EQ(Whole(kIconList), "one\nzwei\n");
    std::string copy(picture.size(), 'x');
    EXPECT_EQ(GetList(kFormName, kIconList, base + 1, copy.data(), exact, "Tbitmap"), RTX_OK);
    EXPECT_EQ(copy, picture);
  }
}

TEST_F(ListPropsTest, NoPictureAndAnIndexOutOfRangeGiveAZeroBuffer) {
  const std::string picture = PackedPicture(1, 1, 'p');
  SetList(kFormName, kIconList, kWhole, "one\ntwo", "String");
  SetList(kFormName, kIconList, 1, picture.data(), "Tbitmap");
  for (const int32_t index : {2, 3, 0, -1, -2, INT_MIN, INT_MAX - 1}) {
    SCOPED_TRACE(index);
    EXPECT_EQ(Read(kIconList, index, 100, "Tbitmap"), "");
  }
}

// For a list box the item number -1 is all items.
TEST_F(ListPropsTest, APictureOutOfRangeIsNobodys) {
  const std::string picture = PackedPicture(1, 1, 'p');
  for (const int32_t base : {0, 1}) {
    SetOptionBase(base);
    SetList(kFormName, kIconList, kWhole, "one\ntwo", "String");
    for (const int32_t index : {base - 1, base + 2, -1, INT_MIN, INT_MAX - 1}) {
      const MessageSpy spy;
      EXPECT_EQ(SetList(kFormName, kIconList, index, picture.data(), "Tbitmap"), RTX_OK);
      EXPECT_TRUE(spy.To(Control(kIconList), LB_SETITEMDATA).empty());
    }
  }
}

TEST_F(ListPropsTest, APictureThatCantBeReadIsNone) {
  std::string broken = PackedPicture(1, 1, 'p');
  broken[0] = 41;
  SetList(kFormName, kIconList, kWhole, "one", "String");
  for (const void* picture : {reinterpret_cast<const void*>(1), reinterpret_cast<const void*>(0xFFFF0000),
                              static_cast<const void*>(broken.data())}) {
    EXPECT_EQ(SetList(kFormName, kIconList, 1, picture, "Tbitmap"), RTX_OK);
    EXPECT_EQ(Read(kIconList, 1, 100, "Tbitmap"), "");
  }
}

}  // namespace
}  // namespace brelt::test
