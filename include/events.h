/* Failure codes, events and private messages of brelt.dll. Plain numbers without any dependence on the
 * platform's headers: programs, custom control modules and the library itself all take them from here. */
#ifndef BRELT_EVENTS_H
#define BRELT_EVENTS_H

/* Failure codes: what an export that returns a code returns. 0 is success. */
enum {
  RTX_OK = 0,
  RTX_CONTROL_DLL = 701, /* a custom control's module can't be loaded, or its class has no valid procedure */
  RTX_NO_WINDOW = 702,   /* the name finds no window of this thread, or a handle isn't a window */
  RTX_WRONG_KIND = 703,  /* the object exists, but the operation doesn't apply to it */
  RTX_RESOURCE_FILE = 704,  /* the RC file name isn't acceptable, or the file is missing or unreadable */
  RTX_PICTURE_BUFFER = 705, /* the picture buffer is missing or too small */
  RTX_SECOND_OWNER = 706,   /* a second top-level window that is no popup */
  RTX_NO_CONTROL_ID = 707,  /* id 0 in a control-array call */
  RTX_NO_MEMORY = 708,      /* memory couldn't be had */
  RTX_NO_CANVAS = 709,      /* the window has no canvas and none could be made */
  RTX_BAD_PICTURE = 710,    /* a picture is null, empty or invalid, or its file can't be read or written */
  RTX_BAD_ICON = 711,       /* no instance or file name, or an icon file without a usable image */
  RTX_BAD_FONT = 712,       /* a font couldn't be changed */
  RTX_SHOW_MODAL = 713,     /* the window can't be shown modally now */
  RTX_SHOW_MODELESS = 714,  /* the window can't be shown now */
  RTX_NO_DIALOG = 721,      /* no window name, or the RC file has no DIALOG of that name */
  RTX_NO_MENU = 722,        /* the RC file lacks the MENU that the DIALOG names */
  RTX_UNDEFINED_ID = 723,   /* the identifier of a control or menu item has no number */
  RTX_ICON_FILE = 724,      /* an ICON control names no icon of the RC file */
  RTX_DIALOG_SYNTAX = 725,  /* the DIALOG doesn't parse */
  RTX_MENU_SYNTAX = 726,    /* the MENU doesn't parse */
  RTX_NO_ITEM = 727,        /* the id names neither a control nor a menu item of the window */
  RTX_CLASS = 728,          /* the CLASS isn't allowed, or the class or window couldn't be made */
  RTX_NULL_BOOL = 751,      /* the output for a truth value is null */
  RTX_NULL_INT = 753,       /* an output for a number is null */
  RTX_NULL_ARG = 756,       /* the object name or a required text is null */
  RTX_NULL_ARRAY = 760,     /* an array argument is null */
  RTX_PRINT_PAGE = 922,     /* a page couldn't be ended or started; the job was aborted */
  RTX_PRINT_START = 923,    /* the print job couldn't be started */
  RTX_NO_PRINTER = 924      /* no print job is open */
};

/* Events: the second argument of a program's event function. */
enum {
  EV_USERBREAK = 0,      /* the break key came in */
  EV_CUSTOM = 32768,     /* message 32768 arrived, with its own wParam and lParam */
  EV_ACTIVATE = 32769,   /* the window is now the active window; lParam as in WM_ACTIVATE */
  EV_CHANGE = 32770,     /* the user changed the value of control wParam; 0 is the text of an edit window */
  EV_MOUSEDOWN = 32771,  /* left button down on control wParam or on the window, 0; lParam is the place */
  EV_CLICK = 32772,      /* control or menu item wParam was chosen; lParam is a sent text, else 0 */
  EV_DBLCLICK = 32773,   /* double click on list wParam or on the window, 0 */
  EV_DEACTIVATE = 32774, /* a number that is posted but never reaches a program */
  EV_KEYPRESS = 32775,   /* key lParam, focus on control wParam; a result above 0 uses the key up */
  EV_LOAD = 32776,       /* the window is complete and still hidden */
  EV_RIGHTDOWN = 32777,  /* as EV_MOUSEDOWN for the right button */
  EV_RESIZE = 32778,    /* lParam is the client size before the change: height in the high word, then width */
  EV_SELCHANGE = 32779, /* the selection of an edit window moved */
  EV_TIMER = 32780,     /* timer wParam */
  EV_CLOSE = 32781      /* a result other than 0 keeps the window open */
};

/* Private messages of the library's own windows. Arguments are wParam and lParam. */
enum {
  XM_COMMANDCHAR = 1282,    /* control id, one character or 0 for the end: collects a text for EV_CLICK */
  XM_GETMAXLENGTH = 1283,   /* control handle, 0: the text limit of the control, 0 for none */
  XM_SETMAXLENGTH = 1284,   /* control handle, limit */
  XM_RECOLOURLINES = 1285,  /* first and last line of an edit window, -1 for the caret's */
  XM_OPENANYPOST = 1286,    /* private to a file dialog */
  XM_GETDRAWFONT = 1287,    /* 0, 0: the font of text drawn on the canvas */
  XM_SETDRAWFONT = 1288,    /* font, 0 */
  XM_GETARRAYVALUE = 1289,  /* key, 0: the value, or 0 if there is none */
  XM_SETARRAYVALUE = 1290,  /* key, value: 0 or RTX_NO_MEMORY */
  XM_GETARRAYVALUES = 1291, /* 0, 0: the block of key=value texts, or 0 */
  XM_SETARRAYVALUES = 1292  /* 0, block: 0 or RTX_NO_MEMORY */
};

/* Messages that custom controls answer. What a number means depends on the control's family. */
enum {
  /* Image.* and Bitmapbutton.* */
  CM_GETPICTURE = 1296, /* result: the bitmap data */
  CM_SETPICTURE = 1297, /* lParam: the bitmap data */
  /* Bitmapbutton.* */
  CM_GETHINT = 1298, /* buffer size, buffer; result: the length */
  CM_SETHINT = 1299, /* lParam: the text */
  /* Shape.* */
  CM_GETSHAPEBACK = 1296,
  CM_SETSHAPEBACK = 1297, /* lParam: the colour */
  CM_GETSHAPEFORE = 1298,
  CM_SETSHAPEFORE = 1299, /* lParam: the colour */
  CM_GETSHAPEBORDER = 1300,
  /* Progressbar.* */
  CM_GETPROGRESS = 1296,
  CM_SETPROGRESS = 1297, /* lParam: the value */
  CM_GETPROGRESSMIN = 1298,
  CM_SETPROGRESSMIN = 1299, /* lParam: the minimum */
  CM_GETPROGRESSMAX = 1300,
  CM_SETPROGRESSMAX = 1301, /* lParam: the maximum */
  CM_GETPROGRESSBACK = 1302,
  CM_SETPROGRESSBACK = 1303, /* lParam: the colour */
  CM_GETPROGRESSFORE = 1304,
  CM_SETPROGRESSFORE = 1305 /* lParam: the colour */
};

#endif
