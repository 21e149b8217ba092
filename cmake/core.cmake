# The core: platform-free, built for this machine and for the DLL from the same sources. It gets memory, files and
# menus through frame/host.h and frame/menuhost.h, whose implementation the program that links it provides.
add_library(brelt_core STATIC
  graphics/packedbitmap.cpp
  graphics/rubberband.cpp
  rc/accelerators.cpp
  rc/commonids.cpp
  rc/dialog.cpp
  rc/directory.cpp
  rc/fields.cpp
  rc/filename.cpp
  rc/linereader.cpp
  rc/locate.cpp
  rc/menubuilder.cpp
  rc/menuoptions.cpp
  rc/menuparser.cpp
  rc/objectkind.cpp
  rc/record.cpp
  rc/scan.cpp
  rc/styles.cpp
  rc/symbols.cpp
  rc/symboluses.cpp
  rc/text.cpp
  rc/textkit.cpp
  rc/wordvalue.cpp
)
target_include_directories(brelt_core PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(brelt_core PRIVATE brelt_library_options)
