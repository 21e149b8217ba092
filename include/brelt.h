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
 * \trace.txt in the root of the current drive. Any other mode is ignored. Returns its argument.
 * Example:
 *   SetTrace(2); */
BRELT_API(int32_t) SetTrace(int32_t mode);

/* Gives the index of the first element of every list, control array and menu array, 0 or 1; 1 at the start.
 * base may be null.
 * Example:
 *   int32_t base;
 *   GetOptionBase(&base); */
BRELT_API(void) GetOptionBase(int32_t* base);

/* Sets that index to 0 or 1; any other value is ignored. Returns its argument.
 * Example:
 *   SetOptionBase(0); */
BRELT_API(int32_t) SetOptionBase(int32_t base);

/* 1 after the user has pressed the break key, Ctrl+Break. The library never clears it.
 * Example:
 *   if (GetUserBreak()) Unload("Main"); */
BRELT_API(int32_t) GetUserBreak(void);

/* Sets that flag to 0 or 1; any other value is ignored.
 * Example:
 *   SetUserBreak(0); */
BRELT_API(void) SetUserBreak(int32_t value);

/* Tells about the product, by letter: B the maker, C the copyright notice, E the maker's e-mail address, P
 * the product, R the release, S the extension of source files, V the version, W the maker's web address; any
 * other letter gives an empty text. Returns buffer. Nothing is written to a null buffer or one of size 0.
 * Example:
 *   char version[8];
 *   GetProductInformation('V', version, sizeof version); */
BRELT_API(char*) GetProductInformation(char letter, char* buffer, uint32_t size);

/* Raises a processor fault on purpose, for tests of a program's fault handling: 5 an access violation, 29 an
 * undefined instruction, 150 a privileged instruction; 253 never returns. Any other code does nothing.
 * Example:
 *   RaiseGuiRtx(5); */
BRELT_API(void) RaiseGuiRtx(int32_t code);

/* Gives the name of the system, its version numbers and its bits, always 32. Writes nothing at all if a
 * pointer is null or size isn't above 0.
 * Example:
 *   char system[40];
 *   uint32_t major, minor, bits;
 *   SystemInfo(system, sizeof system, &major, &minor, &bits); */
BRELT_API(void) SystemInfo(char* buffer, int32_t size, uint32_t* major, uint32_t* minor, uint32_t* bits);

/* ==== Objects ==== */

/* The handle of a window (id 0), of the control with an id, or (id -1) of the control named controlName; null
 * if there is none. controlName is used with id -1 only.
 * Example:
 *   HWND ok = GetHandle("Main", IDOK, NULL);
 *   HWND list = GetHandle("Main", -1, "IDC_LIST"); */
BRELT_API(HWND) GetHandle(const char* name, int32_t id, const char* controlName);

/* Gives the name of a window (id 0) or of a control, as the RC file writes its id; empty for anything else.
 * The result has no meaning.
 * Example:
 *   char name[41];
 *   GetName("Main", IDC_LIST, name, sizeof name); */
BRELT_API(int32_t) GetName(const char* name, int32_t id, char* buffer, int32_t size);

/* Gives the kind of an object, such as "Dialog", "Checkbox" or "Menuitem"; empty for an unknown one. The
 * names "Printer", "Screen" and "Clipboard" are objects without windows. The result has no meaning.
 * Example:
 *   char kind[41];
 *   GetTypeof("Main", IDC_LIST, kind, sizeof kind); */
BRELT_API(int32_t) GetTypeof(const char* name, int32_t id, char* buffer, uint32_t size);

/* The event function of a window, or null. id is ignored.
 * Example:
 *   EventFunction function = GetFuncptr("Main", 0); */
BRELT_API(EventFunction) GetFuncptr(const char* name, int32_t id);

/* The first window whose class and title both match, or null. A pattern with a leading * matches the end of a
 * text, one with a trailing * its beginning. mode is 0 to heed case, 1 to ignore it. threadOnly 1 looks at
 * windows of the calling thread, any other value at all top-level windows. Both patterns must be given and
 * not empty; className is cut to 32 characters, title to 255.
 * Example:
 *   HWND form = FindWindowHandle("Dialog.*", "Order*", 1, 1); */
BRELT_API(HWND) FindWindowHandle(const char* className, const char* title, int32_t mode, int32_t threadOnly);

/* ==== Symbols ==== */

/* The number of a common identifier such as IDOK, 1 to 9, ignoring case; 0 for any other word.
 * Example:
 *   int32_t ok = ResourceCommonId("IDOK"); */
BRELT_API(int32_t) ResourceCommonId(const char* name);

/* The number of a word for the running program: a common identifier, or a #define in <program>.rcx or else in
 * <program>.rc beside the program. 32767 if the word isn't found, its value isn't a number, or neither file
 * has content.
 * Example:
 *   int32_t id = ResourceValue("IDC_LIST"); */
BRELT_API(int32_t) ResourceValue(const char* name);

/* ==== Resources as properties ==== */

/* The calls of a form designer. They work on the text of an RC file and make no window. rcFile is a full path
 * with a drive letter, or a bare file name, which means a file of the current directory. Each of them but
 * ResourceTypelist leaves a message in error, cut to errorSize bytes, or an empty text on success; without a
 * buffer for it nothing is done. An argument called ignored has no meaning; pass 0.
 *
 * A property array is 256 rows of one size: 1025 bytes hold every row that can be written back. A row holds
 * the property list of one object, lines KEY=value in the order of the keys with a line feed behind each; the
 * rows behind the last object are empty. Row 0 is the window, or the header of a menu. */

/* Gives the schema of a type of object such as "Pushbutton": a line KEY=TYPE for each of its properties.
 * buffer is cleared whole, and stays empty for a name without a schema; what doesn't fit is cut. 1025 bytes
 * hold any schema. typeName and buffer may be null.
 * Example:
 *   char schema[1025];
 *   ResourceTypelist("Pushbutton", schema, sizeof schema); */
BRELT_API(void) ResourceTypelist(const char* typeName, char* buffer, int32_t size);

/* Reads a DIALOG or MENU into a property array; rowCount must be 256, rowSize is in bytes. A row too small is
 * cut without a message. After a failure all rows are zero, unless they couldn't be reached.
 * Example:
 *   ResourceRead(0, "main.rc", "Main", rows, 256, 1025, error, sizeof error); */
BRELT_API(void)
ResourceRead(uintptr_t ignored, const char* rcFile, const char* resource, char** rows, int32_t rowCount,
             int32_t rowSize, char* error, int32_t errorSize);

/* Writes a window with its controls from dialogRows and, if it names a MENU, that from menuRows, with an ICON
 * resource for each icon control and a #define for each name, in the place of what the file had of the window
 * before. Both arrays must be given with 256 rows; a window without a menu has empty menu rows. Of each row
 * the first 1024 characters count; it must be terminated, without control characters other than the line
 * feed, and zero from the terminator on. The file is made if need be.
 * Example:
 *   ResourceWrite(0, rows, 256, 1025, menuRows, 256, 1025, "main.rc", error, sizeof error); */
BRELT_API(void)
ResourceWrite(uintptr_t ignored, char** dialogRows, int32_t dialogRowCount, int32_t dialogRowSize,
              char** menuRows, int32_t menuRowCount, int32_t menuRowSize, const char* rcFile, char* error,
              int32_t errorSize);

/* Deletes the resource of a name, whatever its type. A DIALOG takes along its MENU, the ICONs of its icon
 * controls and the #define lines that nothing uses any more. A file or a resource that doesn't exist is no
 * failure.
 * Example:
 *   ResourceDelete("main.rc", "Main", error, sizeof error); */
BRELT_API(void) ResourceDelete(const char* rcFile, const char* resource, char* error, int32_t errorSize);

/* Gives a resource another name, which must be an identifier that no resource has. What refers to it isn't
 * changed.
 * Example:
 *   ResourceRename("main.rc", "Main", "Order", error, sizeof error); */
BRELT_API(void)
ResourceRename(const char* rcFile, const char* oldName, const char* newName, char* error, int32_t errorSize);

/* Writes a resource from its RC text, whose first two words are its name and type: in the place of the
 * resource of that name, or at the end of the file, which is made if need be. Every line must end in a line
 * feed.
 * Example:
 *   ResourceWriteText(0, "main.rc", "Map ICON \"map.ico\"\n", error, sizeof error); */
BRELT_API(void)
ResourceWriteText(uintptr_t ignored, const char* rcFile, const char* text, char* error, int32_t errorSize);

/* Looks into a file. type "*" or a keyword such as "Dialog", or several with a line feed behind each; with
 * name "*" output gets a line NAME,TYPE for each resource, otherwise the text of the first of that name. type
 * "Controls" gives a line "name value" for each symbol of the file, or with the name of a DIALOG for each
 * that it and its MENU use; flags are 1 to sort by name, 2 by value, 16 to number anew where two have one
 * value, 32 to add " uses". The output must be at least one byte larger than the text with its terminator.
 * Example:
 *   char list[4096];
 *   ResourceInfo("main.rc", "*", "*", 0, list, sizeof list, error, sizeof error); */
BRELT_API(void)
ResourceInfo(const char* rcFile, const char* type, const char* name, int32_t flags, char* output,
             int32_t outputSize, char* error, int32_t errorSize);

/* ==== Windows ==== */

/* Makes the window that the DIALOG called name describes, hidden, with its controls and menu, and raises
 * EV_LOAD. instance is the program's module; rcFile a full path, or a file name that is sought in the current
 * directory and then in the program's folder. window (may be null) gets the handle on success only.
 * arrayValues (may be null) is a run of key=value texts, each terminated, with an empty one at the end.
 * message (may be null) gets what is wrong with the file, or an empty text. If a window of that name exists,
 * nothing happens and the result is 0.
 * Codes: 701, 704, 706, 708, 721, 722, 723, 724, 725, 726, 728.
 * Example:
 *   HWND form;
 *   char message[256];
 *   int32_t code = Load(instance, "Main", "main.rc", OnEvent, &form, NULL, message, sizeof message); */
BRELT_API(int32_t)
Load(HMODULE instance, const char* name, const char* rcFile, EventFunction eventFunction, HWND* window,
     const char* arrayValues, char* message, int32_t messageSize);

/* Shows a window, after loading it as Load does if it doesn't exist. With modal other than 0 all other
 * windows of the thread are disabled, and the call returns when the window is closed or hidden; result (may
 * be null) then gets the id of the push button pressed last, 2 after Escape, or 0.
 * Codes: those of Load, which are 701, 704, 706, 708, 721, 722, 723, 724, 725, 726 and 728; 702 if there is
 * still no window, 713 if a modal show and 714 if any other isn't possible now.
 * Example:
 *   int32_t button;
 *   Show(instance, "Ask", "main.rc", OnEvent, NULL, 1, &button);
 *   if (button == IDOK) Hide("Main"); */
BRELT_API(int32_t)
Show(HMODULE instance, const char* name, const char* rcFile, EventFunction eventFunction, HWND* window,
     int32_t modal, int32_t* result);

/* Hides a window. Hiding a modal window ends its show. The result has no meaning.
 * Example:
 *   Hide("Main"); */
BRELT_API(int32_t) Hide(const char* name);

/* Asks a window to close; its event function may refuse. The result has no meaning.
 * Example:
 *   Unload("Main"); */
BRELT_API(int32_t) Unload(const char* name);

/* Tells whether a window is being shown modally; false for an unknown name.
 * Codes: 756, 751.
 * Example:
 *   uint8_t isModal;
 *   IsModal("Main", &isModal); */
BRELT_API(int32_t) IsModal(const char* name, uint8_t* isModal);

/* Handles all messages that are waiting. Returns 0.
 * Example:
 *   while (!GetUserBreak()) DoEvents(); */
BRELT_API(int32_t) DoEvents(void);

/* Shows mainWindow and handles messages until no window of the thread is left, extraWindow aside, or WM_QUIT
 * comes. Without a main window, startFunction (may be null) is called once with zeros. Returns 0 if no other
 * window is left, 1 if WM_QUIT came while some were. instance is ignored.
 * Example:
 *   MainLoop(instance, form, NULL, NULL); */
BRELT_API(int32_t)
MainLoop(HMODULE instance, HWND mainWindow, HWND extraWindow, EventFunction startFunction);

/* ==== Properties ==== */

/* The functions of this family get and set one property each. They take the name of a window and the id of a
 * control or menu item; id 0 is the window. Checks come in this order: 756 for a null name, then 751 (truth
 * value), 753 (number) or 756 (text) for a null argument, 702 if no window of this thread has the name, 703
 * if the object is of a kind without the property, 727 if the id is neither a control nor a menu item. An
 * output is cleared before any check. Truth values are bytes, 0 or 1; any byte other than 0 is true when it
 * comes in. Colours are 0x00BBGGRR. Indexes of lists count from the option base. */

/* Gets the text that a window keeps under a key; empty if it has none. Keys ignore case. Window only.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   char path[261];
 *   GetArrayValue("Main", 0, "path", path, sizeof path); */
BRELT_API(int32_t) GetArrayValue(const char* name, int32_t id, const char* key, char* text, int32_t size);

/* Keeps a text under a key with the window, in place of the one there was. Key, "=" and text are cut to 1024
 * characters. Window only.
 * Codes: 756, 702, 703, 727, 708 without memory.
 * Example:
 *   SetArrayValue("Main", 0, "recent[1]", "C:\\notes.txt"); */
BRELT_API(int32_t) SetArrayValue(const char* name, int32_t id, const char* key, const char* value);

/* Gets many of the texts that a window keeps. The pattern "*" gives the whole block of key=value texts,
 * "name[]" the values of all keys name[...]; each text is terminated and an empty one ends the block. needed
 * gets the bytes that the block takes, also when it doesn't fit, which leaves it empty. block may be null to
 * ask for the size. Window only.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   char values[1000];
 *   int32_t needed;
 *   GetArrayValues("Main", 0, "recent[]", values, sizeof values, &needed); */
BRELT_API(int32_t)
GetArrayValues(const char* name, int32_t id, const char* pattern, char* block, int32_t size, int32_t* needed);

/* Keeps a whole block of key=value texts with the window, in place of all there was. Window only.
 * Codes: 756, 760 for a null block, 702, 703, 727, 708 without memory.
 * Example:
 *   SetArrayValues("Main", 0, "path=C:\\\0size=10\0"); */
BRELT_API(int32_t) SetArrayValues(const char* name, int32_t id, const char* block);

/* Gets the background colour: of drawing for a window, of a Shape or Progressbar control, or of the printer
 * for the name "Printer".
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t colour;
 *   GetBackColour("Main", IDC_SHAPE, &colour); */
BRELT_API(int32_t) GetBackColour(const char* name, int32_t id, int32_t* colour);

/* Sets the background colour of the same objects.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetBackColour("Main", IDC_SHAPE, 0x00FFFF); */
BRELT_API(int32_t) SetBackColour(const char* name, int32_t id, int32_t colour);

/* Gets the foreground colour of the same objects.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t colour;
 *   GetForeColour("Main", IDC_SHAPE, &colour); */
BRELT_API(int32_t) GetForeColour(const char* name, int32_t id, int32_t* colour);

/* Sets the foreground colour of the same objects.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetForeColour("Main", IDC_SHAPE, 0x0000FF); */
BRELT_API(int32_t) SetForeColour(const char* name, int32_t id, int32_t colour);

/* Gets the border: of a window 0 none, 1 single, 2 sizable, 3 double; of a Shape its own; of any other
 * control 0 or 1. A control's border shows only if its style still has it: standard controls get a sunken
 * edge instead.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t style;
 *   GetBorderStyle("Main", 0, &style); */
BRELT_API(int32_t) GetBorderStyle(const char* name, int32_t id, int32_t* style);

/* Gets the text on a window, button, label, icon list or menu item.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   char caption[100];
 *   GetCaption("Main", IDC_LABEL, caption, sizeof caption); */
BRELT_API(int32_t) GetCaption(const char* name, int32_t id, char* text, int32_t size);

/* Sets the text on the same objects. A menu item keeps its check mark and greying. That of an icon list is
 * cut to 1024 characters and loses a tab at its very end.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetCaption("Main", IDM_SAVE, "&Save\tCtrl+S"); */
BRELT_API(int32_t) SetCaption(const char* name, int32_t id, const char* text);

/* Tells whether a menu item has a check mark. Menu items only; controls have a value.
 * Codes: 756, 751, 702, 703, 727.
 * Example:
 *   uint8_t isChecked;
 *   GetChecked("Main", IDM_TOOLBAR, &isChecked); */
BRELT_API(int32_t) GetChecked(const char* name, int32_t id, uint8_t* isChecked);

/* Gives a menu item a check mark or takes it. Menu items only.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetChecked("Main", IDM_TOOLBAR, 1); */
BRELT_API(int32_t) SetChecked(const char* name, int32_t id, uint8_t isChecked);

/* Gets the style of a combo box: 0 drop-down, 1 simple, 2 drop-down list.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t style;
 *   GetCombostyle("Main", IDC_COMBO, &style); */
BRELT_API(int32_t) GetCombostyle(const char* name, int32_t id, int32_t* style);

/* Gets the text in the field of a combo box; empty for a drop-down list.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   char text[100];
 *   GetCombotext("Main", IDC_COMBO, text, sizeof text); */
BRELT_API(int32_t) GetCombotext(const char* name, int32_t id, char* text, int32_t size);

/* Sets the text in the field of a combo box, cut to its maximum length. A drop-down list has no field.
 * Codes: 756, 702, 703, 727, 708 without memory.
 * Example:
 *   SetCombotext("Main", IDC_COMBO, "Lisbon"); */
BRELT_API(int32_t) SetCombotext(const char* name, int32_t id, const char* text);

/* Gets the horizontal drawing position of a window of this program by its handle or, for a null handle, of
 * the printer; 0 for any other handle. Returns 0.
 * Example:
 *   int32_t x;
 *   GetCurrentX(form, &x); */
BRELT_API(int32_t) GetCurrentX(HWND window, int32_t* value);

/* Sets the horizontal drawing position of the same. Returns 0.
 * Example:
 *   SetCurrentX(form, 100); */
BRELT_API(int32_t) SetCurrentX(HWND window, int32_t value);

/* Gets the vertical drawing position of the same. Returns 0.
 * Example:
 *   int32_t y;
 *   GetCurrentY(form, &y); */
BRELT_API(int32_t) GetCurrentY(HWND window, int32_t* value);

/* Sets the vertical drawing position of the same. Returns 0.
 * Example:
 *   SetCurrentY(form, 100); */
BRELT_API(int32_t) SetCurrentY(HWND window, int32_t value);

/* The horizontal pixels per inch of the printer of the running job, 0 without one, for the name "Printer"; of
 * the display for any other name. 0 for null.
 * Example:
 *   int32_t dpi = GetDpiX("Screen"); */
BRELT_API(int32_t) GetDpiX(const char* name);

/* The vertical pixels per inch of the same.
 * Example:
 *   int32_t dpi = GetDpiY("Screen"); */
BRELT_API(int32_t) GetDpiY(const char* name);

/* Tells whether a window, control or menu item is enabled.
 * Codes: 756, 751, 702, 727.
 * Example:
 *   uint8_t isEnabled;
 *   GetEnabled("Main", IDM_SAVE, &isEnabled); */
BRELT_API(int32_t) GetEnabled(const char* name, int32_t id, uint8_t* isEnabled);

/* Enables or disables a control or menu item. A control that loses the focus by it passes it on.
 * Codes: 756, 702, 703 for the window, 727.
 * Example:
 *   SetEnabled("Main", IDM_SAVE, 0); */
BRELT_API(int32_t) SetEnabled(const char* name, int32_t id, uint8_t isEnabled);

/* Gets the flags word of a window.
 * Codes: 756, 753, 702.
 * Example:
 *   int32_t flags;
 *   GetFlags("Main", &flags); */
BRELT_API(int32_t) GetFlags(const char* name, int32_t* flags);

/* Sets the low 16 bits of the flags word; the others stay.
 * Codes: 756, 702.
 * Example:
 *   SetFlags("Editor", 0x240); */
BRELT_API(int32_t) SetFlags(const char* name, int32_t flags);

/* Gets the face of the font of a window by its handle: of a Dialog the font that is drawn with, of any other
 * window its own; for a null handle that of the printer. Empty for no window of this program. Returns 0.
 * Example:
 *   char face[32];
 *   GetFontName(form, face, sizeof face); */
BRELT_API(int32_t) GetFontName(HWND window, char* text, int32_t size);

/* Sets the face of the same font.
 * Codes: 702 if the handle is no window, 712 if the font can't be changed, 924 for the printer without a job.
 * Example:
 *   SetFontName(form, "Courier New"); */
BRELT_API(int32_t) SetFontName(HWND window, const char* text);

/* Gets the size of the same font in points. Returns 0.
 * Example:
 *   int32_t size;
 *   GetFontSize(form, &size); */
BRELT_API(int32_t) GetFontSize(HWND window, int32_t* value);

/* Sets the size of the same font in points.
 * Codes: 702 if the handle is no window, 712 if the font can't be changed, 924 for the printer without a job.
 * Example:
 *   SetFontSize(form, 12); */
BRELT_API(int32_t) SetFontSize(HWND window, int32_t value);

/* Tells whether the same font is bold. Returns 0.
 * Example:
 *   uint8_t isBold;
 *   GetFontBold(form, &isBold); */
BRELT_API(int32_t) GetFontBold(HWND window, uint8_t* value);

/* Makes the same font bold or not.
 * Codes: 702 if the handle is no window, 712 if the font can't be changed, 924 for the printer without a job.
 * Example:
 *   SetFontBold(form, 1); */
BRELT_API(int32_t) SetFontBold(HWND window, uint8_t value);

/* Tells whether the same font is italic. Returns 0.
 * Example:
 *   uint8_t isItalic;
 *   GetFontItalic(form, &isItalic); */
BRELT_API(int32_t) GetFontItalic(HWND window, uint8_t* value);

/* Makes the same font italic or not.
 * Codes: 702 if the handle is no window, 712 if the font can't be changed, 924 for the printer without a job.
 * Example:
 *   SetFontItalic(form, 1); */
BRELT_API(int32_t) SetFontItalic(HWND window, uint8_t value);

/* Gets from a list box, icon list or combo box, by type: "String" gives the text of an item or, with the
 * index 0x7FFFFFFF, all items with a line feed behind each; what doesn't fit gives a mark such as "<ListBox
 * text too long>". "Tbitmap" gives the picture of an icon list's item. An index out of range gives an empty
 * buffer, which is cleared whole.
 * Codes: 756, 702, 703 also for another type, 727.
 * Example:
 *   char item[100];
 *   GetList("Main", IDC_LIST, 1, item, sizeof item, "String"); */
BRELT_API(int32_t)
GetList(const char* name, int32_t id, int32_t index, char* text, int32_t size, const char* type);

/* Sets in the same lists: "String" replaces the text of an item or, with the index 0x7FFFFFFF, the whole list
 * by the lines of the text, less tabs and other control characters. An item has at most 1024 characters.
 * "Tbitmap" sets the picture of an icon list's item, which the caller keeps, or takes it away by null. An
 * index out of range does nothing.
 * Codes: 756, 702, 703 also for another type, 727.
 * Example:
 *   SetList("Main", IDC_LIST, 0x7FFFFFFF, "red\ngreen\nblue\n", "String"); */
BRELT_API(int32_t) SetList(const char* name, int32_t id, int32_t index, const void* value, const char* type);

/* Gets the number of items of a list box, icon list or combo box.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t count;
 *   GetListCount("Main", IDC_LIST, &count); */
BRELT_API(int32_t) GetListCount(const char* name, int32_t id, int32_t* count);

/* Gets the selected item of the same lists, -1 for none.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t index;
 *   GetListIndex("Main", IDC_LIST, &index); */
BRELT_API(int32_t) GetListIndex(const char* name, int32_t id, int32_t* index);

/* Selects an item of the same lists, none by -1.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetListIndex("Main", IDC_LIST, -1); */
BRELT_API(int32_t) SetListIndex(const char* name, int32_t id, int32_t index);

/* Gets the upper end of the range of a scroll bar or progress bar.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t max;
 *   GetMax("Main", IDC_SCROLL, &max); */
BRELT_API(int32_t) GetMax(const char* name, int32_t id, int32_t* value);

/* Sets the upper end of that range. One that isn't within -32768 to 32767, or a range that spans more than
 * 32767, is refused without a code.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetMax("Main", IDC_SCROLL, 200); */
BRELT_API(int32_t) SetMax(const char* name, int32_t id, int32_t value);

/* Gets the lower end of the same range.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t min;
 *   GetMin("Main", IDC_SCROLL, &min); */
BRELT_API(int32_t) GetMin(const char* name, int32_t id, int32_t* value);

/* Sets the lower end of that range, as SetMax does.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetMin("Main", IDC_SCROLL, -100); */
BRELT_API(int32_t) SetMin(const char* name, int32_t id, int32_t value);

/* Gets the text limit of an edit field or combo box, 0 for none.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t length;
 *   GetMaxLength("Main", IDC_NAME, &length); */
BRELT_API(int32_t) GetMaxLength(const char* name, int32_t id, int32_t* length);

/* Sets the text limit of the same controls. A drop-down list has none.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetMaxLength("Main", IDC_NAME, 40); */
BRELT_API(int32_t) SetMaxLength(const char* name, int32_t id, int32_t length);

/* Gets the place and size of a window when it is maximised. outer 0 gives the client size, 1 the outer size.
 * Window only.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t x, y, width, height;
 *   GetMaxPosition("Main", 0, 1, &x, &y, &width, &height); */
BRELT_API(int32_t)
GetMaxPosition(const char* name, int32_t id, int32_t outer, int32_t* x, int32_t* y, int32_t* width,
               int32_t* height);

/* Sets the place and size of a window when it is maximised, if the user can size it. Width and height 0 bring
 * the system's values back.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetMaxPosition("Main", 0, 0, 0, 0, 800, 600); */
BRELT_API(int32_t)
SetMaxPosition(const char* name, int32_t id, int32_t outer, int32_t x, int32_t y, int32_t width,
               int32_t height);

/* Gets the smallest size of a window; x and y are 0. outer as above. Window only.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t x, y, width, height;
 *   GetMinPosition("Main", 0, 1, &x, &y, &width, &height); */
BRELT_API(int32_t)
GetMinPosition(const char* name, int32_t id, int32_t outer, int32_t* x, int32_t* y, int32_t* width,
               int32_t* height);

/* Sets the smallest size of a window, if the user can size it. Width and height 0 take the limit away.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetMinPosition("Main", 0, 0, 0, 0, 320, 200); */
BRELT_API(int32_t)
SetMinPosition(const char* name, int32_t id, int32_t outer, int32_t x, int32_t y, int32_t width,
               int32_t height);

/* Tells whether the user has changed the text of an edit field or edit window.
 * Codes: 756, 751, 702, 703, 727.
 * Example:
 *   uint8_t isModified;
 *   GetModify("Main", IDC_NAME, &isModified); */
BRELT_API(int32_t) GetModify(const char* name, int32_t id, uint8_t* isModified);

/* Sets that mark.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetModify("Main", IDC_NAME, 0); */
BRELT_API(int32_t) SetModify(const char* name, int32_t id, uint8_t isModified);

/* Gets the height of a page of the running print job ("Printer"), of the screen ("Screen") or of a window's
 * canvas, in pixels. Returns 0.
 * Example:
 *   int32_t height;
 *   GetPageHeight("Screen", &height); */
BRELT_API(int32_t) GetPageHeight(const char* name, int32_t* value);

/* Gets the width of the same. Returns 0.
 * Example:
 *   int32_t width;
 *   GetPageWidth("Screen", &width); */
BRELT_API(int32_t) GetPageWidth(const char* name, int32_t* value);

/* Gets the character that an edit field shows in place of what is typed, 0 for none, 9679 for the
 * black circle.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t character;
 *   GetPasswordChar("Main", IDC_NAME, &character); */
BRELT_API(int32_t) GetPasswordChar(const char* name, int32_t id, int32_t* character);

/* Sets that character by its low 8 bits. For the asterisk, 42, a black circle is shown where the platform has
 * one.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetPasswordChar("Main", IDC_NAME, 42); */
BRELT_API(int32_t) SetPasswordChar(const char* name, int32_t id, int32_t character);

/* Gets the height of the sheet, margins included, for the name "Printer" while a job runs; otherwise 0.
 * Returns 0.
 * Example:
 *   int32_t height;
 *   GetPhysicalHeight("Printer", &height); */
BRELT_API(int32_t) GetPhysicalHeight(const char* name, int32_t* value);

/* Gets the width of the sheet in the same way. Returns 0.
 * Example:
 *   int32_t width;
 *   GetPhysicalWidth("Printer", &width); */
BRELT_API(int32_t) GetPhysicalWidth(const char* name, int32_t* value);

/* Gets the width of the sheet's left margin in the same way. Returns 0.
 * Example:
 *   int32_t offset;
 *   GetPhysicalOffsetX("Printer", &offset); */
BRELT_API(int32_t) GetPhysicalOffsetX(const char* name, int32_t* value);

/* Gets the height of the sheet's top margin in the same way. Returns 0.
 * Example:
 *   int32_t offset;
 *   GetPhysicalOffsetY("Printer", &offset); */
BRELT_API(int32_t) GetPhysicalOffsetY(const char* name, int32_t* value);

/* Gets the picture of an Image or Bitmapbutton control, or the canvas of a window, as a packed bitmap. The
 * buffer is cleared whole; no picture leaves it so.
 * Codes: 756, 710 for a null buffer, 702, 703, 727, 705 if the buffer is too small.
 * Example:
 *   static char picture[65536];
 *   GetPicture("Main", IDC_IMAGE, picture, sizeof picture); */
BRELT_API(int32_t) GetPicture(const char* name, int32_t id, void* buffer, int32_t size);

/* Shows a packed bitmap on the same objects, which copy it.
 * Codes: 756, 702, 703, 727, 709 if the window can't have a canvas.
 * Example:
 *   SetPicture("Main", IDC_IMAGE, picture); */
BRELT_API(int32_t) SetPicture(const char* name, int32_t id, const void* picture);

/* Gets the place and size of a window or control in pixels. Of a control they are in its parent's client
 * coordinates. Of a window, mode 0 gives its place on the screen with its client size, mode 1 with its outer
 * size; another mode nothing. The name may be the handle of any window as a hexadecimal text such as
 * "0x1F02"; "Screen" gives the work area, "Printer" zeros.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t x, y, width, height;
 *   GetPosition("Main", IDC_LIST, 0, &x, &y, &width, &height); */
BRELT_API(int32_t)
GetPosition(const char* name, int32_t id, int32_t mode, int32_t* x, int32_t* y, int32_t* width,
            int32_t* height);

/* Moves and sizes the same objects, in the same terms. "Screen" and "Printer" stay as they are.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetPosition("Main", 0, 0, 100, 80, 320, 200); */
BRELT_API(int32_t)
SetPosition(const char* name, int32_t id, int32_t mode, int32_t x, int32_t y, int32_t width, int32_t height);

/* Tells whether an edit field can't be typed in.
 * Codes: 756, 751, 702, 703, 727.
 * Example:
 *   uint8_t isReadOnly;
 *   GetReadonly("Main", IDC_NAME, &isReadOnly); */
BRELT_API(int32_t) GetReadonly(const char* name, int32_t id, uint8_t* isReadOnly);

/* Gets the selection of an edit field or edit window: the first character, from 1, and the number of
 * characters.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t start, length;
 *   GetSelection("Main", IDC_NAME, &start, &length); */
BRELT_API(int32_t) GetSelection(const char* name, int32_t id, int32_t* start, int32_t* length);

/* Sets the selection of the same objects and scrolls it into view.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetSelection("Main", IDC_NAME, 1, 5); */
BRELT_API(int32_t) SetSelection(const char* name, int32_t id, int32_t start, int32_t length);

/* Gets the selected text of an edit field or edit window.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   char word[100];
 *   GetSelText("Main", IDC_NAME, word, sizeof word); */
BRELT_API(int32_t) GetSelText(const char* name, int32_t id, char* text, int32_t size);

/* Puts a text in place of the selection. An edit field refuses one that goes beyond its maximum length by a
 * beep.
 * Codes: 756, 702, 703, 727, 708 without memory.
 * Example:
 *   SetSelText("Main", IDC_NAME, "instead"); */
BRELT_API(int32_t) SetSelText(const char* name, int32_t id, const char* text);

/* Gets the text of an edit field, of an edit window or, for the name "Clipboard", of the clipboard.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   char text[100];
 *   GetText("Main", IDC_NAME, text, sizeof text); */
BRELT_API(int32_t) GetText(const char* name, int32_t id, char* text, int32_t size);

/* Sets the text of the same objects. Line ends become those of the platform, and an edit field's text is cut
 * to its maximum length.
 * Codes: 756, 702, 703, 727, 708 without memory.
 * Example:
 *   SetText("Main", IDC_NAME, "first line\nsecond line"); */
BRELT_API(int32_t) SetText(const char* name, int32_t id, const char* text);

/* Gets the length of the same text in characters.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t length;
 *   GetTextLength("Main", IDC_NAME, &length); */
BRELT_API(int32_t) GetTextLength(const char* name, int32_t id, int32_t* length);

/* Gets the list of words by which an edit window colours its text. Edit windows only.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   char tokens[2000];
 *   GetTokens("Editor", 0, tokens, sizeof tokens); */
BRELT_API(int32_t) GetTokens(const char* name, int32_t id, char* text, int32_t size);

/* Sets that list and colours the whole text anew. Edit windows only.
 * Codes: 756, 702, 703, 727, 708 without memory.
 * Example:
 *   SetTokens("Editor", 0, tokens); */
BRELT_API(int32_t) SetTokens(const char* name, int32_t id, const char* text);

/* Gets the state of a button (0 off, 1 on, 2 greyed), or the position of a scroll bar or progress bar.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t value;
 *   GetValue("Main", IDC_CHECK, &value); */
BRELT_API(int32_t) GetValue(const char* name, int32_t id, int32_t* value);

/* Sets the value of the same controls, held within the range. Turning a radio button on by 1 turns the others
 * of its group off; any other value turns it off alone.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetValue("Main", IDC_CHECK, 1); */
BRELT_API(int32_t) SetValue(const char* name, int32_t id, int32_t value);

/* Tells whether a window or control is visible; of a control by its own style, whether its window shows or
 * not. An unknown name gives false and 0.
 * Codes: 756, 751, 703 for a menu item, 727.
 * Example:
 *   uint8_t isVisible;
 *   GetVisible("Main", IDC_LIST, &isVisible); */
BRELT_API(int32_t) GetVisible(const char* name, int32_t id, uint8_t* isVisible);

/* Shows or hides a control.
 * Codes: 756, 702, 703 for the window and menu items, 727.
 * Example:
 *   SetVisible("Main", IDC_LIST, 0); */
BRELT_API(int32_t) SetVisible(const char* name, int32_t id, uint8_t isVisible);

/* Gets the state of a window: 0 normal, 1 minimised, 2 maximised. Window only.
 * Codes: 756, 753, 702, 703, 727.
 * Example:
 *   int32_t state;
 *   GetWindowState("Main", 0, &state); */
BRELT_API(int32_t) GetWindowState(const char* name, int32_t id, int32_t* state);

/* Sets the state of a window, as far as it has the box for it. Another value does nothing.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   SetWindowState("Main", 0, 2); */
BRELT_API(int32_t) SetWindowState(const char* name, int32_t id, int32_t state);

/* Gives the measures of a packed bitmap: width, height, bits of a pixel, bytes of the whole, and 87 for a
 * Windows or 79 for an OS/2 header. All outputs are 0 if any is null or the memory holds no readable picture.
 * Returns 0.
 * Example:
 *   int32_t width, height, bits, size, kind;
 *   GetBitmapInfo(picture, &width, &height, &bits, &size, &kind); */
BRELT_API(int32_t)
GetBitmapInfo(const void* picture, int32_t* width, int32_t* height, int32_t* bits, int32_t* size,
              int32_t* kind);

/* The page number of the running print job, 0 without one.
 * Example:
 *   int32_t page = GetPage(); */
BRELT_API(int32_t) GetPage(void);

/* The status of the print job: 1 while it takes drawing, 0 without one.
 * Example:
 *   int32_t status = GetPrinterStatus(); */
BRELT_API(int32_t) GetPrinterStatus(void);

/* ==== Menus ==== */

/* Adds an item behind the one with afterId, in the same menu or popup. If the menu has newId already, nothing
 * happens and the result is 0.
 * Codes: 756, 702, 727 without a menu or without afterId, 703 if a control has newId.
 * Example:
 *   AddMenuitem("Main", IDM_SAVE, 301, "Save &as..."); */
BRELT_API(int32_t) AddMenuitem(const char* name, uint32_t afterId, uint32_t newId, const char* text);

/* Adds items behind the one with afterId: ids ends in 0, and each id takes one line of texts, which end in
 * line feeds. Nothing is added if any id is a control's or in the menu already.
 * Codes: 756, 760 for null ids, 702, 727 without a menu or without afterId, 703 if a control or an item has
 * one of the ids.
 * Example:
 *   const uint32_t ids[] = {301, 302, 0};
 *   AddMenuitems("Main", IDM_SAVE, ids, "&1 notes.txt\n&2 todo.txt\n"); */
BRELT_API(int32_t) AddMenuitems(const char* name, uint32_t afterId, const uint32_t* ids, const char* texts);

/* Removes an item. An unknown id is no failure.
 * Codes: 756, 702, 727 without a menu.
 * Example:
 *   RemoveMenuitem("Main", 301); */
BRELT_API(int32_t) RemoveMenuitem(const char* name, uint32_t id);

/* Removes count items of a menu or popup, from the one with firstId on; an unknown firstId
 * is no failure.
 * Codes: 756, 702, 727 without a menu.
 * Example:
 *   RemoveMenuitems("Main", 301, 2); */
BRELT_API(int32_t) RemoveMenuitems(const char* name, uint32_t firstId, int32_t count);

/* ==== Arrays, lists and groups ==== */

/* Neighbouring controls of one kind form an array, and so do the items of one menu or popup; any member's id
 * stands for it. Indexes count from the option base. Outputs start at -1. */

/* Gets the id of the element with an index; -1 if the index is out of range.
 * Codes: 756, 753, 702, 707 for id 0, 727.
 * Example:
 *   int32_t second;
 *   Controlarray("Main", IDC_CHECK, 2, &second); */
BRELT_API(int32_t) Controlarray(const char* name, int32_t id, int32_t index, int32_t* memberId);

/* Gets the index of memberId, a control or item of the window memberName, in the array of id; -1 if it isn't
 * in it.
 * Codes: 756, 753, 702 for either window, 707 for id 0, 727 also for two different windows.
 * Example:
 *   int32_t index;
 *   Controlarraypos("Main", IDC_CHECK, "Main", IDC_CHECK + 1, &index); */
BRELT_API(int32_t)
Controlarraypos(const char* name, int32_t id, const char* memberName, int32_t memberId, int32_t* index);

/* Gets the first index of an array, the option base.
 * Codes: 756, 753, 702, 707 for id 0, 727.
 * Example:
 *   int32_t first;
 *   ControlLbound("Main", IDC_CHECK, &first); */
BRELT_API(int32_t) ControlLbound(const char* name, int32_t id, int32_t* bound);

/* Gets the last index of an array.
 * Codes: 756, 753, 702, 707 for id 0, 727.
 * Example:
 *   int32_t last;
 *   ControlUbound("Main", IDC_CHECK, &last); */
BRELT_API(int32_t) ControlUbound(const char* name, int32_t id, int32_t* bound);

/* Lists the controls of a window, a line for each: its name, and with details other than 0 also ",", its
 * kind, ",0x" and its handle in hexadecimal. count gets the number of controls, which is also the result.
 * Nothing happens unless the window is a Dialog and all arguments are given.
 * Example:
 *   char controls[4000];
 *   int32_t count;
 *   ControlList("Main", 1, controls, sizeof controls, &count); */
BRELT_API(int32_t) ControlList(const char* name, uint8_t details, char* text, int32_t size, int32_t* count);

/* Gets the id of the button that is turned on in a group; -1 if none is. selectedId may be null.
 * Codes: 756, 702, 703 for a control that can't be in such a group, 727.
 * Example:
 *   int32_t selected;
 *   Controlselection("Main", IDC_RADIO, &selected); */
BRELT_API(int32_t) Controlselection(const char* name, int32_t id, int32_t* selectedId);

/* Gets the position of that button in its group, from the option base; -1 if none is. position may be null.
 * Codes: 756, 702, 703 for a control that can't be in such a group, 727.
 * Example:
 *   int32_t position;
 *   Controlselectionpos("Main", IDC_RADIO, &position); */
BRELT_API(int32_t) Controlselectionpos(const char* name, int32_t id, int32_t* position);

/* Adds an item to a list box, icon list or combo box, ahead of the one with an index, or at the end by -1.
 * The text is cut to 1024 characters and loses a line end. picture is kept with the item of an icon list; the
 * caller owns it. An index out of range does nothing.
 * Codes: 756, 702, 703 for another control, 727 also for id 0 and menu items.
 * Example:
 *   AddItem("Main", IDC_LIST, -1, "Lisbon", NULL); */
BRELT_API(int32_t)
AddItem(const char* name, int32_t id, int32_t index, const char* text, const void* picture);

/* Removes the item with an index from such a list. If it was selected, the item behind it is selected then,
 * or the last. An index out of range does nothing.
 * Codes: 756, 702, 703 for another control, 727 also for id 0 and menu items.
 * Example:
 *   RemoveItem("Main", IDC_LIST, 1); */
BRELT_API(int32_t) RemoveItem(const char* name, int32_t id, int32_t index);

/* Removes all items of a list box, icon list or combo box.
 * Codes: 756, 702, 703 for another control, 727 also for id 0 and menu items.
 * Example:
 *   Clear("Main", IDC_LIST); */
BRELT_API(int32_t) Clear(const char* name, int32_t id);

/* Sets the tab stops of a list box or icon list so that its columns, which tabs divide, line up.
 * Codes: 756, 702, 703, 727.
 * Example:
 *   AddItem("Main", IDC_LIST, -1, "Lisbon\t567131", NULL);
 *   AlignItems("Main", IDC_LIST); */
BRELT_API(int32_t) AlignItems(const char* name, int32_t id);

/* Sends a text of at most 259 characters to the event function of a window, as EV_CLICK with the id and the
 * text. The window may belong to another thread or program; the event comes when its messages are handled
 * next.
 * Codes: 756, 702 if the handle is no window, 703 if it is of another class, 727 for an id below 1.
 * Example:
 *   HWND other = FindWindowHandle("Dialog.*", "Log", 0, 0);
 *   Command(other, 1, "started"); */
BRELT_API(int32_t) Command(HWND window, int32_t id, const char* text);

/* Sets the icon of all windows that the program loads, from an icon file or a program. The window classes
 * must be in use; they keep the icon. A missing file is no failure.
 * Codes: 711 for a null instance or an empty name.
 * Example:
 *   AppIcon(instance, "main.ico"); */
BRELT_API(int32_t) AppIcon(HMODULE instance, const char* iconFile);

/* ==== Rubber band ==== */

/* Lets the user move and size a rectangle on a window with the mouse, by a frame with eight handles. The
 * window must be active and the left button down; otherwise it beeps and changes nothing. It ends by a press
 * outside the frame, with flags 1 also by the first release, and by any message but those of moves, that
 * button and timers. handleSize is held to 0 to 10, minWidth and minHeight to 2 to 100, penWidth to 0 to 10.
 * Drawing is clipped to the bounds, client coordinates, if right and bottom aren't 0. x, y, width and height
 * are the rectangle in client coordinates, read and written.
 * Codes: 702.
 * Example:
 *   int32_t x = 20, y = 20, width = 100, height = 60;
 *   TrackRect("Main", 1, 6, 10, 10, 1, 0, 0, 0, 0, &x, &y, &width, &height); */
BRELT_API(int32_t)
TrackRect(const char* name, int32_t flags, int32_t handleSize, int32_t minWidth, int32_t minHeight,
          int32_t penWidth, int32_t boundLeft, int32_t boundTop, int32_t boundRight, int32_t boundBottom,
          int32_t* x, int32_t* y, int32_t* width, int32_t* height);

/* ==== Window procedures ==== */

/* The procedures of the library's window classes, exported so that a program can forward messages to them
 * from a procedure of its own. All results are those of the platform's procedures. */

/* Windows of the class Dialog.1.3.2207.
 * Example:
 *   return Dialog_proc(window, message, wParam, lParam); */
BRELT_API(LRESULT) Dialog_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* Windows of the class Editwindow.1.3.2207.
 * Example:
 *   return Editwindow_proc(window, message, wParam, lParam); */
BRELT_API(LRESULT) Editwindow_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* Windows of the class Richeditwindow.1.3.2207.
 * Example:
 *   return Richeditwindow_proc(window, message, wParam, lParam); */
BRELT_API(LRESULT) Richeditwindow_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* Windows of the classes MSGBOX.1.3.2207, INPUTBOX.1.3.2207 and LISTBOX.1.3.2207.
 * Example:
 *   return winobj_proc(window, message, wParam, lParam); */
BRELT_API(LRESULT) winobj_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* The window of the class TOOLTIPS.1.3.2207.
 * Example:
 *   return ToolTip_proc(window, message, wParam, lParam); */
BRELT_API(LRESULT) ToolTip_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/* ==== Enumeration callbacks ==== */

/* The callbacks that the library hands to EnumWindows and its fellows. Each takes a window and a pointer to a
 * context of the library's own; with a null context it ends the enumeration. */

/* Looks for the window of a name.
 * Example:
 *   BOOL goesOn = Enum_GetOurWindowHandle(window, 0); */
BRELT_API(BOOL) Enum_GetOurWindowHandle(HWND window, LPARAM context);

/* Looks for a window by class and title.
 * Example:
 *   BOOL goesOn = Enum_FindWindowHandle(window, 0); */
BRELT_API(BOOL) Enum_FindWindowHandle(HWND window, LPARAM context);

/* Looks for a window that can own others.
 * Example:
 *   BOOL goesOn = Enum_FindOverlappedWindow(window, 0); */
BRELT_API(BOOL) Enum_FindOverlappedWindow(HWND window, LPARAM context);

/* Looks for a window that keeps the main loop running.
 * Example:
 *   BOOL goesOn = Enum_AppWindowsExist(window, 0); */
BRELT_API(BOOL) Enum_AppWindowsExist(HWND window, LPARAM context);

/* Collects the controls of a window.
 * Example:
 *   BOOL goesOn = Enum_ControlList(window, 0); */
BRELT_API(BOOL) Enum_ControlList(HWND window, LPARAM context);

/* Collects the windows that a modal show disables.
 * Example:
 *   BOOL goesOn = Enum_GetEnabledWindows(window, 0); */
BRELT_API(BOOL) Enum_GetEnabledWindows(HWND window, LPARAM context);

#ifdef __cplusplus
}
#endif

#endif
