#include "forms/controls.h"

#include <shellapi.h>

#include "forms/listitems.h"
#include "frame/library.h"
#include "frame/owners.h"
#include "rc/commonids.h"
#include "rc/filename.h"
#include "rc/locate.h"
#include "rc/stylewords.h"
#include "rc/textkit.h"

namespace brelt {
namespace {

using rc::Failure;
using rc::FixedText;
using rc::ResourceRecord;

constexpr std::string_view kStandardClasses = "BUTTON,COMBOBOX,EDIT,LISTBOX,SCROLLBAR,STATIC";
// On a window: some of its controls have a handle of the library's. Most have none and needn't be asked.
constexpr const char* kHandlesProperty = "brelt.handles";
// On a control, the icon that the library loaded for it.
constexpr const char* kIconProperty = "brelt.icon";
constexpr std::uint32_t kIconType = 3;
// Longest window class name, version and release included.
constexpr int kWindowClassLength = 31;

const char* OrQuestionMark(const char* text) noexcept { return *text == '\0' ? "?" : text; }

// A name counts as standard when it is a piece of the list, so the empty name does, too.
bool IsStandardClass(std::string_view className) noexcept {
  return kStandardClasses.find(className) != std::string_view::npos;
}

// Whether a control takes a picture file through its window text, by class word.
bool IsPictureClass(std::string_view className) noexcept {
  constexpr std::string_view kPictureClasses = "BITMAPBUTTON,IMAGE";
  FixedText<32> upper(className);
  rc::FoldToUpper(upper.data());
  return kPictureClasses.find(upper.view()) != std::string_view::npos;
}

// A list that was just made is empty without being told.
void FillNewList(HWND control, const ResourceRecord& record) noexcept {
  if (!record.text.IsEmpty()) FillListItems(control, record.text.c_str());
}

// One control on its way from a record to a window.
class ControlMaker {
 public:
  ControlMaker(const ControlSource& source, HWND window, Failure& failure) noexcept
      : source_(source),
        window_(window),
        instance_(reinterpret_cast<HINSTANCE>(GetWindowLongA(window, GWL_HINSTANCE))),
        font_(reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0))),
        rcFolder_(rc::SplitPath(source.rcPath).Folder()),
        failure_(failure) {}

  void Make(const ResourceRecord& element, int number) noexcept {
    ResourceRecord record = element;
    OwnedIcon icon;
    if (record.className.view() == "STATIC" && (record.style & 0xF) == kIconType)
      icon = LoadControlIcon(record);
    const std::int32_t id = ResolveId(record);
    ClassName windowClass;
    OwnedModule module;
    if (!failure_) module = SettleClass(record, windowClass);
    if (failure_) return;
    HWND control = Create(record, windowClass, id);
    WindowRecord rows = RecordOf(window_);
    if (rows == nullptr) return;
    WindowRow& row = rows[number];
    row.name.Assign(record.name.view());
    row.id = id;
    row.handle = control;
    row.module = module.release();
    row.maxLength = 0;
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    Furnish(control, record, std::move(icon));
  }

 private:
  OwnedIcon LoadControlIcon(ResourceRecord& record) noexcept;
  std::int32_t ResolveId(const ResourceRecord& record) noexcept;
  OwnedModule SettleClass(ResourceRecord& record, ClassName& windowClass) noexcept;
  OwnedModule LoadModule(const ResourceRecord& record, const char* moduleFile) noexcept;
  void QualifyPicture(ResourceRecord& record) noexcept;
  HWND Create(const ResourceRecord& record, const ClassName& windowClass, std::int32_t id) noexcept;
  void GiveIcon(HWND control, OwnedIcon icon) noexcept;
  void Furnish(HWND control, const ResourceRecord& record, OwnedIcon icon) noexcept;

  const char* DialogName() const noexcept { return source_.records[0]->name.c_str(); }

  const ControlSource& source_;
  HWND window_;
  HINSTANCE instance_;
  HFONT font_;
  host::Path rcFolder_;
  Failure& failure_;
};

// The icon of an ICON control. Its text names a resource of the RC file, which names a file; the text then
// goes, so that the control doesn't look for a resource of its own.
OwnedIcon ControlMaker::LoadControlIcon(ResourceRecord& record) noexcept {
  const FixedText<255> iconName = record.text;
  record.text.Clear();
  if (iconName.IsEmpty()) return {};
  host::Path file;
  rc::ResourceIconFile(source_.rcPath, iconName.c_str(), file);
  file.Assign(rc::TrimBlanks(file.view()));
  rc::QualifyFileName(file.c_str(), rcFolder_.c_str(), file);
  if (file.IsEmpty()) {
    failure_.Format(
        RTX_ICON_FILE,
        "Dialog <%-.*s>, Icon <%-.*s> contains an invalid filename, or is not in the resource file",
        rc::kNameLength, DialogName(), rc::kNameLength, record.name.c_str());
    return {};
  }
  const HICON icon = ExtractIconA(instance_, file.c_str(), 0);
  // 1 says that the file is no icon file.
  return OwnedIcon(reinterpret_cast<UINT_PTR>(icon) > 1 ? icon : nullptr);
}

std::int32_t ControlMaker::ResolveId(const ResourceRecord& record) noexcept {
  const char* name = record.name.c_str();
  std::int32_t id = 0;
  if (rc::IsDigitOrSign(*name)) {
    id = rc::DecimalValue(name);
  } else {
    id = rc::CommonIdValue(name);
    if (id < 1) id = rc::FindSymbolValue(source_.symbols, name);
  }
  if (id == 0) {
    failure_.Format(RTX_UNDEFINED_ID,
                    "Dialog <%-.*s>, Control Type <%-.*s>, Control i/d <%-.*s> is undefined", rc::kNameLength,
                    DialogName(), rc::kNameLength, OrQuestionMark(record.keyword.c_str()), rc::kNameLength,
                    OrQuestionMark(name));
  }
  return id;
}

// Finds the window class; for a custom control also its module, which stays loaded as long as the owner is
// kept.
OwnedModule ControlMaker::SettleClass(ResourceRecord& record, ClassName& windowClass) noexcept {
  if (IsStandardClass(record.className.view())) {
    windowClass.Assign(record.className.view().substr(0, kWindowClassLength));
    return {};
  }
  host::Path moduleFile;
  moduleFile.Format("%s" BRELT_SUFFIX ".dll", record.className.c_str());
  FixedText<kWindowClassLength> name;
  name.Format("%s" BRELT_SUFFIX, record.className.c_str());
  windowClass.Assign(name.view());
  OwnedModule module = LoadModule(record, moduleFile.c_str());
  if (!module) return {};
  WNDCLASSEXA info = {};
  info.cbSize = sizeof info;
  GetClassInfoExA(module.get(), windowClass.c_str(), &info);
  // A class that isn't there leaves no procedure, which is a bad one, too.
  if (IsBadCodePtr(reinterpret_cast<FARPROC>(reinterpret_cast<UINT_PTR>(info.lpfnWndProc)))) {
    failure_.Format(
        RTX_CONTROL_DLL, "Dialog <%-.*s>, Control Type <%-.*s>, DLL <%-.*s> has an invalid WNDPROC",
        rc::kNameLength, DialogName(), rc::kNameLength, record.className.c_str(), 80, moduleFile.c_str());
    // Stays loaded until the process ends: what a module with a broken class does when it goes is anyone's
    // guess.
    module.release();
    return {};
  }
  if (IsPictureClass(record.className.view())) QualifyPicture(record);
  return module;
}

// Looks in the program's folder and then in the Windows folder.
OwnedModule ControlMaker::LoadModule(const ResourceRecord& record, const char* moduleFile) noexcept {
  host::Path windowsFolder;
  GetWindowsDirectoryA(windowsFolder.data(), static_cast<UINT>(windowsFolder.buffer().size()));
  if (!windowsFolder.view().ends_with('\\')) windowsFolder.Append("\\");
  for (const char* folder : {source_.programFolder, windowsFolder.c_str()}) {
    constexpr UINT_PTR kLowestModule = 33;  // lower results are error numbers on old systems
    host::Path path;
    path.Format("%s%s", folder, moduleFile);
    HMODULE module = LoadLibraryA(path.c_str());
    if (reinterpret_cast<UINT_PTR>(module) >= kLowestModule) return OwnedModule(module);
  }
  failure_.Format(RTX_CONTROL_DLL, "Dialog <%-.*s>, Control Type <%-.*s>, Cannot load DLL <%-.*s>",
                  rc::kNameLength, DialogName(), rc::kNameLength, record.className.c_str(),
                  rc::kShownPathLength, OrQuestionMark(moduleFile));
  return {};
}

// Makes the picture file's path absolute, so that it is found whatever the current directory is. The text may
// go on with a line feed and a hint, which stays.
void ControlMaker::QualifyPicture(ResourceRecord& record) noexcept {
  const std::string_view text = record.text.view();
  const std::size_t lineFeed = text.find('\n');
  const FixedText<254> hint(lineFeed == std::string_view::npos ? std::string_view() : text.substr(lineFeed));
  host::Path file(rc::TrimBlanks(text.substr(0, lineFeed)));
  rc::QualifyFileName(file.c_str(), rcFolder_.c_str(), file);
  record.text.Assign(file.view());
  record.text.Append(hint.view());
}

HWND ControlMaker::Create(const ResourceRecord& record, const ClassName& windowClass,
                          std::int32_t id) noexcept {
  std::uint32_t style = record.style | WS_CHILD;
  std::uint32_t exStyle = 0;
  if (IsStandardClass(record.className.view()) && (style & WS_BORDER) != 0) {
    // Standard controls get the sunken edge for a border.
    style &= ~static_cast<std::uint32_t>(WS_BORDER);
    exStyle = WS_EX_CLIENTEDGE;
  }
  const BaseUnits units = source_.units;
  return CreateWindowExA(exStyle, windowClass.c_str(), record.text.c_str(), style, units.PixelsX(record.x),
                         units.PixelsY(record.y), units.PixelsX(record.width), units.PixelsY(record.height),
                         window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance_, nullptr);
}

// The control only shows the icon. One that can't be remembered couldn't be freed, so the control doesn't get
// it.
void ControlMaker::GiveIcon(HWND control, OwnedIcon icon) noexcept {
  const bool remembered = icon && KeepForControl(control, kIconProperty, icon.get());
  HICON shown = remembered ? icon.release() : nullptr;
  SendMessageA(control, STM_SETICON, reinterpret_cast<WPARAM>(shown), 0);
}

void ControlMaker::Furnish(HWND control, const ResourceRecord& record, OwnedIcon icon) noexcept {
  const std::string_view className = record.className.view();
  if (className == "STATIC") {
    if ((record.style & 0xF) == kIconType) GiveIcon(control, std::move(icon));
  } else if (className == "LISTBOX") {
    FillNewList(control, record);
    if ((record.style & WS_HSCROLL) != 0) {
      const unsigned extent = static_cast<unsigned>(source_.units.width) << 10 | 30;
      SendMessageA(control, LB_SETHORIZONTALEXTENT, extent, 0);
    }
  } else if (className == "COMBOBOX") {
    FillNewList(control, record);
  } else if (className == "SCROLLBAR") {
    SetScrollRange(control, SB_CTL, 0, 100, FALSE);
  } else if (ClassMatches(control, "Bitmapbutton.*")) {
    const char* lineFeed = std::strchr(record.text.c_str(), '\n');
    if (lineFeed != nullptr) SendMessageA(control, CM_SETHINT, 0, reinterpret_cast<LPARAM>(lineFeed + 1));
  }
}

BOOL CALLBACK ReleaseHandlesOf(HWND control, LPARAM) noexcept {
  const OwnedIcon icon(static_cast<HICON>(RemovePropA(control, kIconProperty)));
  const OwnedFont font(static_cast<HFONT>(RemovePropA(control, kFontProperty)));
  return TRUE;
}

}  // namespace

void CreateControls(const ControlSource& source, HWND window, Failure& failure) noexcept {
  const CallOut callOut;  // each control is made by its module's code
  ControlMaker maker(source, window, failure);
  for (int i = 1; i < rc::kRecordCount && !failure && RecordOf(window) != nullptr; ++i) {
    const ResourceRecord& element = *source.records[i];
    if (element.name.IsEmpty()) return;
    maker.Make(element, i);
  }
}

bool KeepForControl(HWND control, const char* property, HANDLE handle) noexcept {
  HWND window = GetAncestor(control, GA_ROOT);
  return SetPropA(window, kHandlesProperty, window) != FALSE && SetPropA(control, property, handle) != FALSE;
}

void ReleaseControlHandles(HWND window) noexcept {
  if (RemovePropA(window, kHandlesProperty) == nullptr) return;
  EnumChildWindows(window, ReleaseHandlesOf, 0);
}

}  // namespace brelt
