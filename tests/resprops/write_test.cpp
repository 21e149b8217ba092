#include "resprops/resourcewrite.h"

#include <gtest/gtest.h>

#include "tests/resprops/propsupport.h"

namespace brelt::resprops {
namespace {

using test::Rows;
using Texts = std::vector<std::string>;

TEST(ResourceWrite, WorkedExample) {
  test::ResetHost();
  Rows dialog, menu;
  dialog.Fill({
      "ALIGNMENT=0\nBORDERSTYLE=3\nCAPTION=\"Demo\"\nCLOSEBOX=1\nFLAGS=0\nFONTNAME=\"Courier\"\nFONTSIZE=8\n"
      "MAXBUTTON=0\nMENU=MainMenu\nMINBUTTON=0\nNAME=Main\nOWNER=0\nPOSITION=10 20 200 100\nTYPEOF=Dialog\n",
      "CAPTION=\"OK\"\nDEFAULT=1\nENABLED=1\nGROUP=0\nNAME=OkBtn\nPOSITION=10 10 50 14\nTABSTOP=1\n"
      "TYPEOF=Pushbutton\nVISIBLE=1\n",
      "ALIGNMENT=0\nBORDERSTYLE=0\nCAPTION=\"Hello\"\nGROUP=1\nNAME=Noname1\nPOSITION=10 30 50 "
      "8\nTYPEOF=Label\n"
      "VISIBLE=1\n",
      "ALIGNMENT=2\nCAPTION=\"Keep\"\nENABLED=1\nGROUP=0\nNAME=Chk1\nPOSITION=10 50 50 "
      "10\nTABSTOP=1\nTYPEOF=Checkbox\nVISIBLE=1\n",
      "NAME=Ico1\nPICTURE=\"c:\\pics\\a.ico\"\nPOSITION=10 70 20 20\nTYPEOF=Icon\nVISIBLE=1\n",
  });
  menu.Fill(
      {"NAME=MainMenu\nPOSITION=0\nTYPEOF=Menuitem\n", "CAPTION=\"&File\"\nPOSITION=1\nTYPEOF=Menuitem\n",
       "CAPTION=\"&Open\"\nNAME=FileOpen\nPOSITION=2\nTYPEOF=Menuitem\n", "POSITION=2\nTYPEOF=Menuitem\n",
       "CAPTION=\"E&xit\"\nNAME=FileExit\nPOSITION=2\nTYPEOF=Menuitem\n"});
  rc::FixedText<1000> error;
  ResourceWrite({dialog.pointers(), 256, dialog.size()}, {menu.pointers(), 256, menu.size()}, "forms.rc",
                error);
  EXPECT_EQ(error.view(), "");
  printf("%s<<<\n", test::ReadFile(test::kRcFile).c_str());
  for (auto& f : test::ListFiles()) printf("%s\n", f.c_str());
  ResourceWrite({dialog.pointers(), 256, dialog.size()}, {menu.pointers(), 256, menu.size()}, "forms.rc",
                error);
  printf("%s<<<\n", test::ReadFile(test::kRcFile).c_str());
}
}  // namespace
}  // namespace brelt::resprops
