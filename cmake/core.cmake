# The core: platform-free, built for this machine and for the DLL from the same sources. It gets memory, files and
# menus through rc/host.h and rc/menuhost.h, whose implementation the program that links it provides.
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
  resprops/classkeyword.cpp
  resprops/deleteresource.cpp
  resprops/errortext.cpp
  resprops/escape.cpp
  resprops/proparray.cpp
  resprops/properties.cpp
  resprops/rcfile.cpp
  resprops/rctext.cpp
  resprops/readrows.cpp
  resprops/renameresource.cpp
  resprops/replaceresource.cpp
  resprops/resourceinfo.cpp
  resprops/resourceread.cpp
  resprops/resourcewrite.cpp
  resprops/rewrite.cpp
  resprops/rewritesymbols.cpp
  resprops/schema.cpp
  resprops/stylewordsof.cpp
  resprops/textfile.cpp
  resprops/writerows.cpp
)
target_include_directories(brelt_core PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(brelt_core PRIVATE brelt_library_options)
