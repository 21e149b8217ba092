/* brelt.dll: windows, controls, events and menus for programs of the Quorvane language, described by RC text
 * files that the library reads at run time.
 *
 * Conventions. All functions are stdcall. A window is addressed by its name (at most 40 characters, case
 * doesn't matter, windows of the calling thread only), a control or menu item by its window's name and a
 * numeric id; id 0 is the window itself. Texts are single-byte and terminated. A text output is a buffer and
 * its size in bytes: what doesn't fit is cut, and it is always terminated. A function that returns a failure
 * code returns 0 (RTX_OK) or one of the RTX_ codes of events.h; checks come in a fixed order, and outputs are
 * cleared before any of them. The library keeps nothing that a caller passes beyond the call, other than the
 * event function of a window.
 */
#ifndef BRELT_H
#define BRELT_H

#include <stdint.h>
#include <windows.h>

#include "events.h"

#ifdef BRELT_BUILD
#define BRELT_API(result) result __stdcall
#else
#define BRELT_API(result) __declspec(dllimport) result __stdcall
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* A program's function that hears all events of a window. Its result counts for EV_CLOSE, where other than 0
 * keeps the window open, and for EV_KEYPRESS, where above 0 uses the key up. It may call any function of the
 * library. */
typedef int32_t(__stdcall* EventFunction)(HWND window, uint32_t event, uint32_t wParam, int32_t lParam);

/* ==== Frame ==== */

/* Chooses where the name of each call is written: 0 nowhere, 1 to the debugger's output, 2 to the file
 * \trace.txt in the root of the current drive. Any other mode is ignored. Returns its argument. */
BRELT_API(int32_t) SetTrace(int32_t mode);

/* Gives the index of the first element of every list, control array and menu array, 0 or 1; 1 at the start.
 * base may be null. */
BRELT_API(void) GetOptionBase(int32_t* base);

/* Sets that index to 0 or 1; any other value is ignored. Returns its argument. */
BRELT_API(int32_t) SetOptionBase(int32_t base);

/* 1 after the user has pressed the break key, Ctrl+Break. The library never clears it. */
BRELT_API(int32_t) GetUserBreak(void);

/* Sets that flag to 0 or 1; any other value is ignored. */
BRELT_API(void) SetUserBreak(int32_t value);

/* Tells about the product, by letter: B the maker, C the copyright notice, E the maker's e-mail address, P
 * the product, R the release, S the extension of source files, V the version, W the maker's web address; any
 * other letter gives an empty text. Returns buffer. Nothing is written to a null buffer or one of size 0. */
BRELT_API(char*) GetProductInformation(char letter, char* buffer, uint32_t size);

/* Raises a processor fault on purpose, for tests of a program's fault handling: 5 an access violation, 29 an
 * undefined instruction, 150 a privileged instruction; 253 never returns. Any other code does nothing. */
BRELT_API(void) RaiseGuiRtx(int32_t code);

/* Gives the name of the system, its version numbers and its bits, always 32. Writes nothing at all if a
 * pointer is null or size isn't above 0. */
BRELT_API(void) SystemInfo(char* buffer, int32_t size, uint32_t* major, uint32_t* minor, uint32_t* bits);

/* ==== Objects ==== */

/* The handle of a window (id 0), of the control with an id, or (id -1) of the control named controlName; null
 * if there is none. controlName is used with id -1 only. */
BRELT_API(HWND) GetHandle(const char* name, int32_t id, const char* controlName);

/* Gives the name of a window (id 0) or of a control, as the RC file writes its id; empty for anything else.
 * The result has no meaning. */
BRELT_API(int32_t) GetName(const char* name, int32_t id, char* buffer, int32_t size);

/* Gives the kind of an object, such as "Dialog", "Checkbox" or "Menuitem"; empty for an unknown one. The
 * names "Printer", "Screen" and "Clipboard" are objects without windows. The result has no meaning. */
BRELT_API(int32_t) GetTypeof(const char* name, int32_t id, char* buffer, uint32_t size);

/* The event function of a window, or null. id is ignored. */
BRELT_API(EventFunction) GetFuncptr(const char* name, int32_t id);

/* The first window whose class and title both match, or null. A pattern with a leading * matches the end of a
 * text, one with a trailing * its beginning. mode is 0 to heed case, 1 to ignore it. threadOnly 1 looks at
 * windows of the calling thread, any other value at all top-level windows. Both patterns must be given and
 * not empty; className is cut to 32 characters, title to 255. */
BRELT_API(HWND) FindWindowHandle(const char* className, const char* title, int32_t mode, int32_t threadOnly);

/* ==== Symbols ==== */

/* The number of a common identifier such as IDOK, 1 to 9, ignoring case; 0 for any other word. */
BRELT_API(int32_t) ResourceCommonId(const char* name);

/* The number of a word for the running program: a common identifier, or a #define in <program>.rcx or else in
 * <program>.rc beside the program. 32767 if the word isn't found, its value isn't a number, or neither file
 * has content. */
BRELT_API(int32_t) ResourceValue(const char* name);

/* ==== Windows ==== */

/* Makes the window that the DIALOG called name describes, hidden, with its controls and menu, and raises
 * EV_LOAD. instance is the program's module; rcFile a full path, or a file name that is sought in the current
 * directory and then in the program's folder. window (may be null) gets the handle on success only.
 * arrayValues (may be null) is a run of key=value texts, each terminated, with an empty one at the end.
 * message (may be null) gets what is wrong with the file, or an empty text. If a window of that name exists,
 * nothing happens and the result is 0. */
BRELT_API(int32_t)
Load(HMODULE instance, const char* name, const char* rcFile, EventFunction eventFunction, HWND* window,
     const char* arrayValues, char* message, int32_t messageSize);

/* Shows a window, after loading it as Load does if it doesn't exist. With modal other than 0 all other
 * windows of the thread are disabled, and the call returns when the window is closed or hidden; result (may
 * be null) then gets the id of the push button pressed last, 2 after Escape, or 0. */
BRELT_API(int32_t)
Show(HMODULE instance, const char* name, const char* rcFile, EventFunction eventFunction, HWND* window,
     int32_t modal, int32_t* result);

/* Hides a window. Hiding a modal window ends its show. The result has no meaning. */
BRELT_API(int32_t) Hide(const char* name);

/* Asks a window to close; its event function may refuse. The result has no meaning. */
BRELT_API(int32_t) Unload(const char* name);

/* Tells whether a window is being shown modally; false for an unknown name. Codes: 756, 751. */
BRELT_API(int32_t) IsModal(const char* name, uint8_t* isModal);

/* Handles all messages that are waiting. Returns 0. */
BRELT_API(int32_t) DoEvents(void);

/* Shows mainWindow and handles messages until no window of the thread is left, extraWindow aside, or WM_QUIT
 * comes. Without a main window, startFunction (may be null) is called once with zeros. Returns 0 if no window
 * is left, 1 if WM_QUIT ended the loop. instance is ignored. */
BRELT_API(int32_t)
MainLoop(HMODULE instance, HWND mainWindow, HWND extraWindow, EventFunction startFunction);

/* ==== Window procedures ==== */

/* The procedures of the library's window classes, exported so that a program can forward messages to them
 * from a procedure of its own. All results are those of the platform's procedures. */

/* Windows of the class Dialog.1.3.2207. */
BRELT_API(LRESULT) Dialog_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* Windows of the class Editwindow.1.3.2207. */
BRELT_API(LRESULT) Editwindow_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* Windows of the class Richeditwindow.1.3.2207. */
BRELT_API(LRESULT) Richeditwindow_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* Windows of the classes MSGBOX.1.3.2207, INPUTBOX.1.3.2207 and LISTBOX.1.3.2207. */
BRELT_API(LRESULT) winobj_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* The window of the class TOOLTIPS.1.3.2207. */
BRELT_API(LRESULT) ToolTip_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* ==== Enumeration callbacks ==== */

/* The callbacks that the library hands to EnumWindows and its fellows. Each takes a window and a pointer to a
 * context of the library's own; with a null context it ends the enumeration. */

/* Looks for the window of a name. */
BRELT_API(BOOL) Enum_GetOurWindowHandle(HWND window, LPARAM context);

/* Looks for a window by class and title. */
BRELT_API(BOOL) Enum_FindWindowHandle(HWND window, LPARAM context);

/* Looks for a window that can own others. */
BRELT_API(BOOL) Enum_FindOverlappedWindow(HWND window, LPARAM context);

/* Looks for a window that keeps the main loop running. */
BRELT_API(BOOL) Enum_AppWindowsExist(HWND window, LPARAM context);

/* Collects the windows that a modal show disables. */
BRELT_API(BOOL) Enum_GetEnabledWindows(HWND window, LPARAM context);

#ifdef __cplusplus
}
#endif

#endif
