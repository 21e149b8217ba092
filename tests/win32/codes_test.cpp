// Programs and control modules are compiled with these numbers.
#include <brelt.h>
#include <gtest/gtest.h>

namespace brelt::test {
namespace {

struct Number {
  const char* name;
  int value;
  int expected;
};
#define NUMBER(name, expected) \
  { #name, name, expected }

TEST(Numbers, OfFailureCodesAreFixed) {
  const Number codes[] = {NUMBER(RTX_OK, 0),
                          NUMBER(RTX_CONTROL_DLL, 701),
                          NUMBER(RTX_NO_WINDOW, 702),
                          NUMBER(RTX_WRONG_KIND, 703),
                          NUMBER(RTX_RESOURCE_FILE, 704),
                          NUMBER(RTX_PICTURE_BUFFER, 705),
                          NUMBER(RTX_SECOND_OWNER, 706),
                          NUMBER(RTX_NO_CONTROL_ID, 707),
                          NUMBER(RTX_NO_MEMORY, 708),
                          NUMBER(RTX_NO_CANVAS, 709),
                          NUMBER(RTX_BAD_PICTURE, 710),
                          NUMBER(RTX_BAD_ICON, 711),
                          NUMBER(RTX_BAD_FONT, 712),
                          NUMBER(RTX_SHOW_MODAL, 713),
                          NUMBER(RTX_SHOW_MODELESS, 714),
                          NUMBER(RTX_NO_DIALOG, 721),
                          NUMBER(RTX_NO_MENU, 722),
                          NUMBER(RTX_UNDEFINED_ID, 723),
                          NUMBER(RTX_ICON_FILE, 724),
                          NUMBER(RTX_DIALOG_SYNTAX, 725),
                          NUMBER(RTX_MENU_SYNTAX, 726),
                          NUMBER(RTX_NO_ITEM, 727),
                          NUMBER(RTX_CLASS, 728),
                          NUMBER(RTX_NULL_BOOL, 751),
                          NUMBER(RTX_NULL_INT, 753),
                          NUMBER(RTX_NULL_ARG, 756),
                          NUMBER(RTX_NULL_ARRAY, 760),
                          NUMBER(RTX_PRINT_PAGE, 922),
                          NUMBER(RTX_PRINT_START, 923),
                          NUMBER(RTX_NO_PRINTER, 924)};
  for (const Number& code : codes) EXPECT_EQ(code.value, code.expected) << code.name;
}

TEST(Numbers, OfEventsAreFixed) {
  const Number events[] = {
      NUMBER(EV_USERBREAK, 0),     NUMBER(EV_CUSTOM, 32768),     NUMBER(EV_ACTIVATE, 32769),
      NUMBER(EV_CHANGE, 32770),    NUMBER(EV_MOUSEDOWN, 32771),  NUMBER(EV_CLICK, 32772),
      NUMBER(EV_DBLCLICK, 32773),  NUMBER(EV_DEACTIVATE, 32774), NUMBER(EV_KEYPRESS, 32775),
      NUMBER(EV_LOAD, 32776),      NUMBER(EV_RIGHTDOWN, 32777),  NUMBER(EV_RESIZE, 32778),
      NUMBER(EV_SELCHANGE, 32779), NUMBER(EV_TIMER, 32780),      NUMBER(EV_CLOSE, 32781)};
  for (const Number& event : events) EXPECT_EQ(event.value, event.expected) << event.name;
}

TEST(Numbers, OfPrivateMessagesAreFixed) {
  const Number messages[] = {
      NUMBER(XM_COMMANDCHAR, 1282),    NUMBER(XM_GETMAXLENGTH, 1283),  NUMBER(XM_SETMAXLENGTH, 1284),
      NUMBER(XM_RECOLOURLINES, 1285),  NUMBER(XM_OPENANYPOST, 1286),   NUMBER(XM_GETDRAWFONT, 1287),
      NUMBER(XM_SETDRAWFONT, 1288),    NUMBER(XM_GETARRAYVALUE, 1289), NUMBER(XM_SETARRAYVALUE, 1290),
      NUMBER(XM_GETARRAYVALUES, 1291), NUMBER(XM_SETARRAYVALUES, 1292)};
  for (const Number& message : messages) EXPECT_EQ(message.value, message.expected) << message.name;
}

TEST(Numbers, OfControlMessagesAreFixedByFamily) {
  const Number messages[] = {
      NUMBER(CM_GETPICTURE, 1296),      NUMBER(CM_SETPICTURE, 1297),      NUMBER(CM_GETHINT, 1298),
      NUMBER(CM_SETHINT, 1299),         NUMBER(CM_GETSHAPEBACK, 1296),    NUMBER(CM_SETSHAPEBACK, 1297),
      NUMBER(CM_GETSHAPEFORE, 1298),    NUMBER(CM_SETSHAPEFORE, 1299),    NUMBER(CM_GETSHAPEBORDER, 1300),
      NUMBER(CM_GETPROGRESS, 1296),     NUMBER(CM_SETPROGRESS, 1297),     NUMBER(CM_GETPROGRESSMIN, 1298),
      NUMBER(CM_SETPROGRESSMIN, 1299),  NUMBER(CM_GETPROGRESSMAX, 1300),  NUMBER(CM_SETPROGRESSMAX, 1301),
      NUMBER(CM_GETPROGRESSBACK, 1302), NUMBER(CM_SETPROGRESSBACK, 1303), NUMBER(CM_GETPROGRESSFORE, 1304),
      NUMBER(CM_SETPROGRESSFORE, 1305)};
  for (const Number& message : messages) EXPECT_EQ(message.value, message.expected) << message.name;
}

}  // namespace
}  // namespace brelt::test
