#include "forms/topwindow.h"

#include "forms/controls.h"
#include "forms/windowclass.h"
#include "frame/library.h"
#include "frame/systemname.h"
#include "frame/winobject.h"
#include "rc/filename.h"
#include "rc/stylekeywords.h"

namespace brelt {
namespace {

using rc::Failure;
using rc::ResourceRecord;

constexpr int kTokenTableSize = 25500;

struct OverlappedSearch {
  HWND found = nullptr;
};

// The first window of this thread that can own others.
HWND FindOverlappedWindow() noexcept {
  OverlappedSearch search;
  EnumThreadWindows(GetCurrentThreadId(), Enum_FindOverlappedWindow, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void ProgramFolder(HMODULE instance, host::Path& folder) noexcept {
  host::Path program;
  host::ModulePath(instance, program);
  folder.Assign(rc::SplitPath(program.view()).Folder());
  if (!folder.view().ends_with('\\')) folder.Append("\\");
}

// A read-only text can't be overwritten, indented or shifted, and is never coloured while it is edited.
std::uint32_t EditFlags(std::uint32_t flags) noexcept {
  constexpr std::uint32_t kWriting = EWS_ALLOWOVERWRITE | EWS_AUTOINDENT | EWS_HILITE | EWS_TABSHIFT;
  return (flags & EWS_READONLY) != 0 ? flags & ~kWriting : flags;
}

// The id of the first default button; 0 if there is none.
std::int32_t DefaultButtonId(const WindowRow* record) noexcept {
  // The rows stand in the children's order, and to go from child to child costs more than making some of
  // them.
  for (int row = 1; row < kDialogRows && !record[row].name.IsEmpty(); ++row) {
    HWND control = record[row].handle;
    if (ClassMatches(control, "BUTTON") && TypeBitsOf(control) == BS_DEFPUSHBUTTON) return record[row].id;
  }
  return 0;
}

class TopWindowMaker {
 public:
  TopWindowMaker(const WindowSource& source, Failure& failure) noexcept
      : source_(source),
        failure_(failure),
        element_(*source.records[0]),
        kind_(KindOfClass(element_.className.view())) {}

  HWND Make() noexcept {
    if (!HasUsableClass(kind_, source_.instance)) {
      failure_.Set(RTX_CLASS, "Could not create class ", kind_.className);
      return nullptr;
    }
    rc::FixedText<40> systemName;
    std::uint32_t minor = 0;
    std::uint32_t bits = 0;
    QuerySystemName(systemName, systemMajor_, minor, bits);
    style_ = element_.style;
    NormaliseWindowStyle(systemName.view(), HasMenu(), style_, exStyle_);
    OwnedWindow window(CreateFrame());
    if (!window || !GiveRecord(window.get())) return nullptr;
    OwnedFont font = ChooseFont();
    units_ = FontBaseUnits(font.get());
    if (kind_.isEdit) {
      RecordOf(window.get())->font = font.release();
      if (!GiveEditControl(window.get())) return nullptr;
    } else {
      FillDialog(window.get(), std::move(font));
    }
    PlaceWindow(window.get());
    if (!IsWindow(window.get())) ReportNoWindow();  // the code of a control may have taken it along
    return window.release();
  }

 private:
  bool HasMenu() const noexcept { return !element_.menuName.IsEmpty(); }
  void ReportNoWindow() noexcept {
    failure_.Format(RTX_CLASS, "Could not create window %s, class failed to register or not enough resources",
                    source_.name);
  }

  HWND CreateFrame() noexcept;
  bool GiveRecord(HWND window) noexcept;
  bool GiveEditControl(HWND window) noexcept;
  OwnedFont ChooseFont() const noexcept;
  void FillDialog(HWND window, OwnedFont font) noexcept;
  void PlaceWindow(HWND window) const noexcept;

  const WindowSource& source_;
  Failure& failure_;
  const ResourceRecord& element_;
  const WindowKind& kind_;
  std::uint32_t systemMajor_ = 0;
  std::uint32_t style_ = 0;
  std::uint32_t exStyle_ = 0;
  BaseUnits units_ = {};
};

HWND TopWindowMaker::CreateFrame() noexcept {
  HWND owner = FindOverlappedWindow();
  if (owner != nullptr && (style_ & WS_POPUP) == 0) {
    failure_.Set(RTX_SECOND_OWNER, "Only allowed one top level owner window");
    return nullptr;
  }
  if (owner == nullptr) owner = GetDesktopWindow();
  constexpr int kFirstSize = 20;  // until the units of its font are known
  HWND window = CreateWindowExA(exStyle_, kind_.className, element_.text.c_str(), style_, 0, 0, kFirstSize,
                                kFirstSize, owner, nullptr, source_.instance, nullptr);
  if (window == nullptr) {
    ReportNoWindow();
    return nullptr;
  }
  WriteSlot(window, SLOT_FLAGS, static_cast<LONG>(kind_.isEdit ? EditFlags(element_.exStyle) : WF_CANVAS));
  WriteSlot(window, SLOT_FUNCPTR, reinterpret_cast<LONG>(source_.eventFunction));
  return window;
}

// From here on the window is found by its name.
bool TopWindowMaker::GiveRecord(HWND window) noexcept {
  host::Block<WindowRow> record(kind_.isEdit ? 1 : kDialogRows);
  if (!record) {
    failure_.Set(RTX_NO_MEMORY, "Not enough memory for window ", source_.name);
    return false;
  }
  WindowRow& row = record[0];
  row.name.Assign(source_.name);
  row.handle = window;
  row.backColour = RGB(255, 255, 255);
  WritePointer(window, SLOT_RECORD, record.release());
  WriteSlot(window, SLOT_ARRAYVALUES, 0);
  if (!kind_.isEdit) return true;
  host::Block<char> tokens(kTokenTableSize);
  if (!tokens) {
    failure_.Set(RTX_NO_MEMORY, "Not enough memory for window ", source_.name);
    return false;
  }
  WritePointer(window, SLOT_CANVAS, tokens.release());
  WriteSlot(window, SLOT_CANVASANCHOR, kTokenTableSize);
  return true;
}

// The place where an edit window gets its inner control. Until the library has one, this is what a control
// that can't be made reports.
bool TopWindowMaker::GiveEditControl(HWND) noexcept {
  failure_.Set(RTX_NO_MEMORY, "Could not create multi line control for window ", source_.name);
  return false;
}

OwnedFont TopWindowMaker::ChooseFont() const noexcept {
  // The oldest systems draw a thin font where others draw a readable one.
  const bool boldSystem = systemMajor_ == 3;
  if (!element_.fontName.IsEmpty()) {
    return MakeFont(element_.fontName.c_str(), element_.fontSize, boldSystem && !kind_.isEdit, false);
  }
  if (boldSystem) return MakeFont("Microsoft Sans Serif", 8, true, false);
  const host::FontChoice font = host::DefaultFont();
  return MakeFont(font.face.c_str(), font.size, font.bold, font.italic);
}

void TopWindowMaker::FillDialog(HWND window, OwnedFont font) noexcept {
  SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font.release()), 0);
  SendMessageA(window, XM_SETDRAWFONT, reinterpret_cast<WPARAM>(ChooseFont().release()), 0);

  host::Path programFolder;
  ProgramFolder(source_.instance, programFolder);
  const ControlSource controls{programFolder.c_str(), source_.rcPath, source_.symbols, source_.records,
                               units_};
  CreateControls(controls, window, failure_);
  if (WindowRecord record = RecordOf(window); record != nullptr) record->defaultId = DefaultButtonId(record);
}

void TopWindowMaker::PlaceWindow(HWND window) const noexcept {
  RECT outer = {0, 0, units_.PixelsX(element_.width), units_.PixelsY(element_.height)};
  AdjustWindowRectEx(&outer, style_, HasMenu(), exStyle_);
  const int width = outer.right - outer.left;
  const int height = outer.bottom - outer.top;
  if ((style_ & DS_CENTER) == 0) {
    MoveWindow(window, units_.PixelsX(element_.x), units_.PixelsY(element_.y), width, height, FALSE);
    return;
  }
  // Two moves: what a program hears of the size first is what each left behind.
  MoveWindow(window, 0, 0, width, height, FALSE);
  MoveWindow(window, GetSystemMetrics(SM_CXSCREEN) / 2 - width / 2,
             GetSystemMetrics(SM_CYSCREEN) / 2 - height / 2, width, height, FALSE);
}

}  // namespace

HWND CreateTopWindow(const WindowSource& source, Failure& failure) noexcept {
  return TopWindowMaker(source, failure).Make();
}

void NormaliseWindowStyle(std::string_view systemName, bool hasMenu, std::uint32_t& style,
                          std::uint32_t& exStyle) noexcept {
  constexpr std::uint32_t kPlainPopup = WS_POPUP | WS_SYSMENU | DS_MODALFRAME;
  style = style != 0 ? style & rc::FindStyleKeyword("DIALOG")->legal.bits : kPlainPopup;
  style &= ~static_cast<std::uint32_t>(WS_VISIBLE);
  const bool oldSystem = systemName == "Windows v3";
  const bool hasBoxes = (style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) != 0;
  const bool modalFrame = (style & DS_MODALFRAME) != 0 || (exStyle & WS_EX_DLGMODALFRAME) != 0;
  if (oldSystem && modalFrame && (hasBoxes || hasMenu)) {
    // That system can't draw boxes or a menu bar in a modal frame.
    style = (style & ~static_cast<std::uint32_t>(DS_MODALFRAME)) | WS_BORDER;
  }
  exStyle = (style & DS_MODALFRAME) != 0 ? WS_EX_DLGMODALFRAME : 0;
  style &= ~static_cast<std::uint32_t>(DS_MODALFRAME);
  if (!oldSystem) exStyle |= WS_EX_WINDOWEDGE;
}

void TrimSystemMenu(HWND window) noexcept {
  HMENU menu = GetSystemMenu(window, FALSE);
  const std::uint32_t style = StyleOf(window);
  const auto dropWithout = [&](std::uint32_t bits, UINT command) {
    if ((style & bits) == 0) DeleteMenu(menu, command, MF_BYCOMMAND);
  };
  dropWithout(WS_THICKFRAME, SC_SIZE);
  dropWithout(WS_MAXIMIZEBOX, SC_MAXIMIZE);
  dropWithout(WS_MINIMIZEBOX, SC_MINIMIZE);
  dropWithout(WS_MINIMIZEBOX | WS_MAXIMIZEBOX, SC_RESTORE);
  EnableMenuItem(menu, SC_TASKLIST, MF_BYCOMMAND | MF_GRAYED);
  DrawMenuBar(window);
}

}  // namespace brelt

using namespace brelt;

BOOL __stdcall Enum_FindOverlappedWindow(HWND window, LPARAM context) {
  auto* search = reinterpret_cast<OverlappedSearch*>(context);
  if (search == nullptr) return FALSE;
  if (!IsWindowObject(window) || (StyleOf(window) & (WS_CHILD | WS_POPUP)) != 0) return TRUE;
  search->found = window;
  return FALSE;
}
