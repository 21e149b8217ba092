#include "forms/load.h"

#include "forms/topwindow.h"
#include "forms/windowclass.h"
#include "frame/owners.h"
#include "frame/trace.h"
#include "frame/winobject.h"
#include "rc/dialog.h"
#include "rc/filename.h"
#include "rc/locate.h"
#include "rc/menubuilder.h"
#include "rc/symbols.h"

namespace brelt {
namespace {

using rc::Failure;

constexpr const char* kNoMemoryToLoad = "Insufficient memory to load window: ";

// The memory that a load works in; all of it goes when the load ends.
struct Workspace {
  host::Block<char> text{rc::kResourceTextSize};
  host::Block<rc::SymbolRecord> symbols{rc::kSymbolCount};
  rc::RecordArray records;

  bool IsComplete() const noexcept { return text && symbols && records; }
};

// Finds the DIALOG and parses it into the workspace.
void ReadDialog(const LoadRequest& request, const char* path, Workspace& work, Failure& failure) noexcept {
  if (!rc::IsFullPathName(path)) {
    failure.Format(RTX_RESOURCE_FILE,
                   "Resource file <%-.*s> should be a full path with a drive letter or just a filename",
                   rc::kShownPathLength, request.rcFile != nullptr ? request.rcFile : "");
  } else if (rc::FileSizeOf(path) < 0) {
    failure.Format(RTX_RESOURCE_FILE, "Resource file <%-.*s> is invalid or missing.", rc::kShownPathLength,
                   path);
  } else if (rc::LocateResource(path, request.name, "DIALOG", {work.text.get(), rc::kResourceTextSize}) ==
             0) {
    failure.Set(RTX_NO_DIALOG, "Resource file does not contain a DIALOG resource named: ", request.name);
  }
  if (failure) return;
  rc::FixedText<1023> fault;
  if (!rc::ParseDialog(work.text.get(), work.records.table(), fault)) {
    failure.Set(RTX_DIALOG_SYNTAX, fault.view());
    return;
  }
  const char* className = work.records[0].className.c_str();
  if (!IsLoadableClass(className)) {
    failure.Format(RTX_CLASS, "Class '%s' is not allowed for window: %s", className, request.name);
  }
}

// Gives a window the menu that its DIALOG names, with the table of its keys.
void GiveMenu(HWND window, const LoadRequest& request, const char* path, const char* menuName,
              const rc::SymbolIndex& symbols, Failure& failure) noexcept {
  host::Block<rc::AcceleratorTable> keys(1);
  if (!keys) return failure.Set(RTX_NO_MEMORY, kNoMemoryToLoad, request.name);
  rc::AcceleratorTable& table = keys[0];
  WritePointer(window, SLOT_ACCELTABLE, keys.release());
  OwnedMenu previous(GetMenu(window));
  SetMenu(window, nullptr);
  OwnedMenu menu(reinterpret_cast<HMENU>(rc::BuildMenuFromFile(path, menuName, symbols, table, failure)));
  if (failure) return;
  if (SetMenu(window, menu.get())) menu.release();
  DrawMenuBar(window);
}

// Everything a window needs besides itself; on a failure it is to be destroyed.
void FinishWindow(HWND window, const LoadRequest& request, const char* path, Workspace& work,
                  const rc::SymbolIndex& symbols, Failure& failure) noexcept {
  WriteSlot(window, SLOT_ACCELTABLE, 0);
  if (failure) return;
  const char* menuName = work.records[0].menuName.c_str();
  if (*menuName != '\0') GiveMenu(window, request, path, menuName, symbols, failure);
  if (failure) return;
  TrimSystemMenu(window);
  if (rc::IsEmpty(request.arrayValues)) return;
  const LRESULT code =
      SendMessageA(window, XM_SETARRAYVALUES, 0, reinterpret_cast<LPARAM>(request.arrayValues));
  if (code != RTX_OK) failure.Set(static_cast<std::int32_t>(code), "");
}

// Makes a window with all it needs; null with a failure. The working memory is gone again before anybody
// hears of it.
HWND MakeWindow(const LoadRequest& request, Failure& failure) noexcept {
  Workspace work;
  if (!work.IsComplete()) {
    failure.Set(RTX_NO_MEMORY, kNoMemoryToLoad, request.name);
    return nullptr;
  }
  host::Path path;
  rc::FindFileNearProgram(request.instance, request.rcFile, path);
  ReadDialog(request, path.c_str(), work, failure);
  if (failure) return nullptr;

  // A file without symbols is normal: an identifier that needs one is found out where it is used.
  rc::SymbolReport ignored;
  rc::LoadSymbols(path.c_str(), nullptr, 0, {work.symbols.get(), work.symbols.count()}, ignored);
  const rc::SymbolIndex symbols({work.symbols.get(), work.symbols.count()});
  OwnedWindow window(CreateTopWindow(
      {request.instance, request.name, symbols, work.records.table(), request.eventFunction, path.c_str()},
      failure));
  if (!window) return nullptr;
  FinishWindow(window.get(), request, path.c_str(), work, symbols, failure);
  return failure ? nullptr : window.release();
}

}  // namespace

void LoadWindow(const LoadRequest& request, HWND* window, Failure& failure) noexcept {
  if (ResolveName(request.name) != nullptr) return;
  if (rc::IsEmpty(request.name)) return failure.Set(RTX_NO_DIALOG, "Window object name is invalid.");
  HWND made = MakeWindow(request, failure);
  if (made == nullptr) return;
  if (window != nullptr) *window = made;
  RecordOf(made)->loaded = 1;
  SendMessageA(made, EV_LOAD, 0, 0);
}

}  // namespace brelt

using namespace brelt;

int32_t __stdcall Load(HMODULE instance, const char* name, const char* rcFile, EventFunction eventFunction,
                       HWND* window, const char* arrayValues, char* message, int32_t messageSize) {
  TraceCall(__func__);
  rc::Failure failure;
  LoadWindow({instance, name, rcFile, eventFunction, arrayValues}, window, failure);
  rc::TextBuffer(message, messageSize).Assign(failure.message.view());
  return failure.code;
}
