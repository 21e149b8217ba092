// FontName, FontSize, FontBold and FontItalic.
#include <climits>
#include <cstring>
#include <functional>
#include <memory>
#include <string>

#include "tests/support/guarded.h"
#include "tests/win32/support/handles.h"
#include "tests/win32/support/imports.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

LOGFONTA Describe(HGDIOBJ font) {
  LOGFONTA description = {};
  GetObjectA(font, sizeof description, &description);
  return description;
}

int Dpi() {
  HDC display = CreateDCA("DISPLAY", nullptr, nullptr, nullptr);
  const int dpi = GetDeviceCaps(display, LOGPIXELSY);
  DeleteDC(display);
  return dpi;
}

HFONT MakeFont(const char* face, int height, int weight, bool italic) {
  LOGFONTA description = {};
  description.lfHeight = height;
  description.lfWeight = weight;
  description.lfItalic = italic ? 1 : 0;
  std::strcpy(description.lfFaceName, face);
  return CreateFontIndirectA(&description);
}

// The changes that the four calls can make, one each.
struct Change {
  const char* what;
  std::function<int32_t(HWND)> make;
  std::function<void(FontLook&)> model;
};
const std::vector<Change>& Changes() {
  static const std::vector<Change> changes = {
      {"name", [](HWND w) { return SetFontName(w, "Courier"); }, [](FontLook& f) { f.face = "Courier"; }},
      {"size", [](HWND w) { return SetFontSize(w, 14); }, [](FontLook& f) { f.size = 14; }},
      {"bold", [](HWND w) { return SetFontBold(w, 1); }, [](FontLook& f) { f.bold = 1; }},
      {"italic", [](HWND w) { return SetFontItalic(w, 5); }, [](FontLook& f) { f.italic = 1; }},
      {"not bold", [](HWND w) { return SetFontBold(w, 0); }, [](FontLook& f) { f.bold = 0; }},
      {"size again", [](HWND w) { return SetFontSize(w, 9); }, [](FontLook& f) { f.size = 9; }},
      {"name again", [](HWND w) { return SetFontName(w, "Tahoma"); }, [](FontLook& f) { f.face = "Tahoma"; }},
      {"upright", [](HWND w) { return SetFontItalic(w, 0); }, [](FontLook& f) { f.italic = 0; }},
  };
  return changes;
}

class FontTest : public PropertyTest {
 protected:
  void SetUp() override {
    PropertyTest::SetUp();
    plain_ = std::make_unique<EditFrame>(kPlainFrameClass, "Plain");
    SendMessageA(plain_->get(), WM_SETFONT, reinterpret_cast<WPARAM>(MakeFont("Tahoma", -12, 400, false)), 0);
  }
  void TearDown() override {
    plain_.reset();
    PropertyTest::TearDown();
  }

  HFONT DrawFont() const { return reinterpret_cast<HFONT>(SendMessageA(form(), XM_GETDRAWFONT, 0, 0)); }
  static HFONT OwnFont(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0));
  }
  HFONT FontOf(HWND window) const { return window == form() ? DrawFont() : OwnFont(window); }
  HWND plain() const { return plain_->get(); }
  // A form, an edit window and a control.
  std::vector<HWND> Windows() const { return {form(), plain(), Control(kField)}; }

 private:
  std::unique_ptr<EditFrame> plain_;
};

TEST_F(FontTest, OfAFormIsTheOneThatIsDrawnWithAndOfOthersTheirOwn) {
  SendMessageA(form(), XM_SETDRAWFONT, reinterpret_cast<WPARAM>(MakeFont("Courier", -16, 700, true)), 0);
  EXPECT_EQ(FontLookOf(form()), (FontLook{"Courier", MulDiv(16, 72, Dpi()), 1, 1}));
  HFONT field = MakeFont("Arial", 20, 699, false);
  SendMessageA(Control(kField), WM_SETFONT, reinterpret_cast<WPARAM>(field), 0);
  EXPECT_EQ(FontLookOf(Control(kField)), (FontLook{"Arial", MulDiv(20, 72, Dpi()), 0, 0}));
  EXPECT_EQ(FontLookOf(plain()), (FontLook{"Tahoma", MulDiv(12, 72, Dpi()), 0, 0}));
  DeleteObject(field);
}

TEST_F(FontTest, NameIsCutToTheBuffer) {
  SetFontName(form(), "Liberation Sans");
  ExpectCallCutToFit("Liberation Sans", [&](char* text, int32_t size) { GetFontName(form(), text, size); });
}

TEST_F(FontTest, NameHasAtMost31Characters) {
  const std::string face(40, 'f');
  EXPECT_EQ(SetFontName(form(), face.c_str()), RTX_OK);
  EXPECT_EQ(FontLookOf(form()).face, face.substr(0, 31));
}

TEST_F(FontTest, OutputsMayBeMissing) {
  for (HWND window : {form(), static_cast<HWND>(nullptr), reinterpret_cast<HWND>(0xDEAD)}) {
    EXPECT_EQ(GetFontName(window, nullptr, 20), RTX_OK);
    EXPECT_EQ(GetFontSize(window, nullptr), RTX_OK);
    EXPECT_EQ(GetFontBold(window, nullptr), RTX_OK);
    EXPECT_EQ(GetFontItalic(window, nullptr), RTX_OK);
  }
}

TEST_F(FontTest, EachChangeKeepsTheRest) {
  for (HWND window : Windows()) {
    FontLook expected = FontLookOf(window);
    for (const Change& change : Changes()) {
      SCOPED_TRACE(change.what);
      EXPECT_EQ(change.make(window), RTX_OK);
      change.model(expected);
      EXPECT_EQ(FontLookOf(window), expected);
      const LOGFONTA made = Describe(FontOf(window));
      EXPECT_EQ(made.lfHeight, -MulDiv(Dpi(), expected.size, 72));
      EXPECT_EQ(made.lfWeight, expected.bold != 0 ? 700 : 400);
    }
  }
}

TEST_F(FontTest, SizesComeBackAsTheyWereSet) {
  for (int32_t size = 1; size < 100; ++size) {
    EXPECT_EQ(SetFontSize(form(), size), RTX_OK);
    EXPECT_EQ(FontLookOf(form()).size, size);
  }
}

TEST_F(FontTest, AnUnusualWeightBecomesOneOfTheTwo) {
  struct Case {
    int before, after;
  };
  for (const Case& c : {Case{100, 400}, Case{600, 400}, Case{699, 400}, Case{700, 700}, Case{900, 700}}) {
    SetFontBold(form(), 0);
    DeleteObject(DrawFont());
    SendMessageA(form(), XM_SETDRAWFONT, reinterpret_cast<WPARAM>(MakeFont("Tahoma", -13, c.before, false)),
                 0);
    EXPECT_EQ(SetFontSize(form(), 12), RTX_OK);
    EXPECT_EQ(Describe(DrawFont()).lfWeight, c.after);
  }
}

// ---- Ownership ----

TEST_F(FontTest, TheOneBeforeIsDeleted) {
  for (HWND window : Windows()) {
    EXPECT_EQ(SetFontSize(window, 11), RTX_OK);
    HFONT before = FontOf(window);
    EXPECT_EQ(SetFontSize(window, 12), RTX_OK);
    EXPECT_NE(FontOf(window), before);
    EXPECT_EQ(GetObjectType(before), 0u);
    EXPECT_EQ(GetObjectType(FontOf(window)), static_cast<DWORD>(OBJ_FONT));
  }
}

// All controls of a form have the form's font.
TEST_F(FontTest, OfTheFormStaysWhenAControlGetsItsOwn) {
  HFONT shared = OwnFont(form());
  EXPECT_EQ(OwnFont(Control(kField)), shared);
  EXPECT_EQ(SetFontSize(Control(kField), 20), RTX_OK);
  EXPECT_NE(OwnFont(Control(kField)), shared);
  EXPECT_EQ(OwnFont(Control(kPush)), shared);
  EXPECT_EQ(GetObjectType(shared), static_cast<DWORD>(OBJ_FONT));
}

// So has what lies within a control, such as the field of a combo box.
TEST_F(FontTest, OfTheFormStaysWhenAPartOfAControlGetsItsOwn) {
  HFONT shared = OwnFont(form());
  HWND part = GetWindow(Control(kDropDown), GW_CHILD);
  ASSERT_EQ(OwnFont(part), shared);
  for (const int32_t size : {20, 30}) {
    EXPECT_EQ(SetFontSize(part, size), RTX_OK);
    EXPECT_EQ(FontLookOf(part).size, size);
    EXPECT_EQ(GetObjectType(shared), static_cast<DWORD>(OBJ_FONT));
  }
  EXPECT_EQ(OwnFont(Control(kDropDown)), shared);
}

// A combo box hands the font that it gets on to its field.
TEST_F(FontTest, OfAControlStaysWhenAPartOfItGetsItsOwn) {
  HWND part = GetWindow(Control(kDropDown), GW_CHILD);
  EXPECT_EQ(SetFontSize(Control(kDropDown), 20), RTX_OK);
  HFONT given = OwnFont(Control(kDropDown));
  ASSERT_EQ(OwnFont(part), given);
  EXPECT_EQ(SetFontSize(part, 30), RTX_OK);
  EXPECT_EQ(FontLookOf(part).size, 30);
  EXPECT_EQ(GetObjectType(given), static_cast<DWORD>(OBJ_FONT));
  EXPECT_EQ(FontLookOf(Control(kDropDown)).size, 20);
}

TEST_F(FontTest, ThatAProgramGaveAControlIsDeletedLikeAnyOther) {
  EXPECT_EQ(SetFontSize(Control(kField), 20), RTX_OK);
  HFONT own = OwnFont(Control(kField));
  HFONT given = MakeFont("Arial", -20, 400, false);
  SendMessageA(Control(kField), WM_SETFONT, reinterpret_cast<WPARAM>(given), 0);
  EXPECT_EQ(SetFontBold(Control(kField), 1), RTX_OK);
  EXPECT_EQ(FontLookOf(Control(kField)), (FontLook{"Arial", MulDiv(20, 72, Dpi()), 1, 0}));
  EXPECT_EQ(GetObjectType(given), 0u);
  EXPECT_EQ(GetObjectType(own), 0u);
}

int FontsNow() { return CountHandles().fonts; }

TEST_F(FontTest, ChangesLeaveNoFontBehind) {
  for (HWND window : Windows()) SetFontSize(window, 10);
  const HandleCount before = CountHandles();
  for (int round = 0; round < 200; ++round) {
    for (HWND window : Windows()) {
      for (const Change& change : Changes()) change.make(window);
    }
  }
  const HandleCount after = CountHandles();
  EXPECT_EQ(after.fonts, before.fonts);
  EXPECT_EQ(after.contexts, before.contexts);
}

TEST_F(FontTest, OfControlsGoWithTheirForm) {
  const auto loadChangeAndClose = [] {
    const LoadResult other = LoadDialog("Other",
                                        "  EDITTEXT 100, 0, 0, 9, 9\n  LTEXT \"a\", 101, 0, 0, 9, 9\n"
                                        "  COMBOBOX 102, 0, 0, 9, 9, CBS_DROPDOWN");
    ASSERT_EQ(other.code, RTX_OK);
    HWND combo = GetDlgItem(other.window, 102);
    for (HWND control :
         {GetDlgItem(other.window, 100), GetDlgItem(other.window, 101), GetWindow(combo, GW_CHILD), combo}) {
      EXPECT_EQ(SetFontSize(control, 20), RTX_OK);
      EXPECT_EQ(SetFontBold(control, 1), RTX_OK);
    }
    EXPECT_EQ(SetFontSize(other.window, 20), RTX_OK);
    DestroyWindow(other.window);
  };
  loadChangeAndClose();
  const int before = FontsNow();
  for (int round = 0; round < 5; ++round) loadChangeAndClose();
  EXPECT_EQ(FontsNow(), before);
}

// ---- What can't be changed ----

struct Kept {
  const char* what;
  std::function<int32_t(HWND)> make;
};
const std::vector<Kept>& KeepingCalls() {
  static const std::vector<Kept> calls = {
      {"null name", [](HWND w) { return SetFontName(w, nullptr); }},
      {"size -1", [](HWND w) { return SetFontSize(w, -1); }},
  };
  return calls;
}

TEST_F(FontTest, NothingToChangeDoesNothing) {
  for (const Kept& call : KeepingCalls()) {
    SCOPED_TRACE(call.what);
    for (HWND window : Windows()) {
      HFONT before = FontOf(window);
      EXPECT_EQ(call.make(window), RTX_OK);
      EXPECT_EQ(FontOf(window), before);
    }
    EXPECT_EQ(call.make(nullptr), RTX_OK);
    EXPECT_EQ(call.make(reinterpret_cast<HWND>(0xDEAD)), RTX_OK);
  }
}

TEST_F(FontTest, OfAHandleThatIsNoWindowIs702AndEmpty) {
  HWND gone = Control(kPush);
  DestroyWindow(gone);
  for (HWND window : {gone, reinterpret_cast<HWND>(0xDEAD)}) {
    EXPECT_EQ(FontLookOf(window), kNoFont);
    for (const Change& change : Changes()) EXPECT_EQ(change.make(window), RTX_NO_WINDOW);
  }
}

TEST_F(FontTest, OfThePrinterIs924AndEmptyWithoutAJob) {
  EXPECT_EQ(FontLookOf(nullptr), kNoFont);
  for (const Change& change : Changes()) EXPECT_EQ(change.make(nullptr), RTX_NO_PRINTER);
}

using DeviceCaps = CountedImport<struct CapsTag, int, HDC, int>;
using Contexts = CountedImport<struct ContextTag, HDC, LPCSTR, LPCSTR, LPCSTR, const DEVMODEA*>;
using Descriptions = CountedImport<struct ObjectTag, int, HANDLE, int, LPVOID>;
using NewFonts = CountedImport<struct FontTag, HFONT, const LOGFONTA*>;

TEST_F(FontTest, WithoutTheDisplaysPixelsPerInchIs712) {
  for (HWND window : Windows()) {
    HFONT before = FontOf(window);
    for (const Change& change : Changes()) {
      SCOPED_TRACE(change.what);
      {
        const DeviceCaps none("GetDeviceCaps", DeviceCaps::kAlways);
        EXPECT_EQ(change.make(window), RTX_BAD_FONT);
      }
      {
        const Contexts none("CreateICA", Contexts::kAlways);
        EXPECT_EQ(change.make(window), RTX_BAD_FONT);
      }
    }
    EXPECT_EQ(FontOf(window), before);
  }
}

// Ahead of a change each of the four stock fonts is read.
TEST_F(FontTest, WithoutAStockFontIs712) {
  for (HWND window : Windows()) {
    HFONT before = FontOf(window);
    for (int read = 1; read <= 4; ++read) {
      SCOPED_TRACE(read);
      const Descriptions failing("GetObjectA", read);
      EXPECT_EQ(SetFontSize(window, 20), RTX_BAD_FONT);
      EXPECT_EQ(failing.calls(), read);
    }
    EXPECT_EQ(FontOf(window), before);
  }
}

TEST_F(FontTest, ThatCantBeMadeIs712) {
  for (HWND window : Windows()) {
    HFONT before = FontOf(window);
    const NewFonts none("CreateFontIndirectA", NewFonts::kAlways);
    EXPECT_EQ(SetFontSize(window, 20), RTX_BAD_FONT);
    EXPECT_EQ(FontOf(window), before);
    EXPECT_EQ(GetObjectType(before), static_cast<DWORD>(OBJ_FONT));
  }
}

// The same tests come again behind the change, which then stands.
TEST_F(FontTest, ThatIsDamagedByTheChangeIs712) {
  for (HWND window : Windows()) {
    int reads = 0;
    {
      const Descriptions counted("GetObjectA");
      EXPECT_EQ(SetFontSize(window, 20), RTX_OK);
      reads = counted.calls();
    }
    // The last five are the stock fonts and the new one.
    for (int read = reads - 4; read <= reads; ++read) {
      SCOPED_TRACE(read);
      HFONT before = FontOf(window);
      {
        const Descriptions failing("GetObjectA", read);
        EXPECT_EQ(SetFontSize(window, 30), RTX_BAD_FONT);
      }
      EXPECT_NE(FontOf(window), before);
      EXPECT_EQ(FontLookOf(window).size, 30);
    }
  }
}

TEST_F(FontTest, FacesBeginWithALetterAnUnderscoreOrAnAtSign) {
  struct Case {
    const char* face;
    int32_t code;
  };
  for (HWND window : {form(), plain(), Control(kField)}) {
    for (const Case& c :
         {Case{"Tahoma", 0}, Case{"zzz", 0}, Case{"_x", 0}, Case{"@x", 0}, Case{"A1", 0}, Case{"1x", 712},
          Case{" x", 712}, Case{"-", 712}, Case{"", 712}, Case{"\xE4x", 712}}) {
      SCOPED_TRACE(c.face);
      // The test stands ahead of the change on forms and edit windows, so that a sound face is put there
      // first.
      HFONT sound = MakeFont("Tahoma", -13, 400, false);
      SendMessageA(window, window == form() ? XM_SETDRAWFONT : WM_SETFONT, reinterpret_cast<WPARAM>(sound),
                   0);
      EXPECT_EQ(SetFontName(window, c.face), c.code);
      EXPECT_EQ(FontLookOf(window).face, c.face);
    }
  }
}

TEST_F(FontTest, OfAnUnsoundFaceStaysOnAFormAndCanBeChangedOnAControl) {
  EXPECT_EQ(SetFontName(form(), "1x"), RTX_BAD_FONT);
  HFONT before = DrawFont();
  EXPECT_EQ(SetFontName(form(), "Tahoma"), RTX_BAD_FONT);
  EXPECT_EQ(DrawFont(), before);
  EXPECT_EQ(SetFontName(plain(), "1x"), RTX_BAD_FONT);
  EXPECT_EQ(SetFontName(plain(), "Tahoma"), RTX_BAD_FONT);
  EXPECT_EQ(SetFontName(Control(kField), "1x"), RTX_BAD_FONT);
  EXPECT_EQ(SetFontName(Control(kField), "Tahoma"), RTX_OK);
}

// ---- Painting ----

TEST_F(FontTest, OfAnEditWindowIsShownByErasingIt) {
  static int erasures;
  struct Replacement {
    static BOOL WINAPI Invalidate(HWND window, const RECT* area, BOOL erase) {
      if (area == nullptr && erase) ++erasures;
      return InvalidateRect(window, area, erase);
    }
  };
  const ReplacedImport invalidate("InvalidateRect", reinterpret_cast<void*>(&Replacement::Invalidate));
  erasures = 0;
  EXPECT_EQ(SetFontSize(plain(), 20), RTX_OK);
  EXPECT_EQ(erasures, 1);
  EXPECT_EQ(SetFontSize(form(), 20), RTX_OK);
  EXPECT_EQ(SetFontSize(Control(kField), 20), RTX_OK);
  EXPECT_EQ(erasures, 1);
}

TEST_F(FontTest, OfAControlIsHandedOverForDrawing) {
  const MessageSpy spy;
  EXPECT_EQ(SetFontSize(Control(kField), 20), RTX_OK);
  const auto sent = spy.To(Control(kField), WM_SETFONT);
  ASSERT_EQ(sent.size(), 1u);
  EXPECT_EQ(sent[0].lParam, TRUE);
  EXPECT_EQ(sent[0].wParam, reinterpret_cast<WPARAM>(OwnFont(Control(kField))));
}

}  // namespace
}  // namespace brelt::test
