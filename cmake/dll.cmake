# brelt.dll, its import library and what programs need to build against it.

# The sources that need Windows, apart from the DLL so that tests can link what isn't exported.
add_library(brelt_parts OBJECT
  frame/entry.cpp
  frame/fault.cpp
  frame/findwindow.cpp
  frame/host_win32.cpp
  frame/identity.cpp
  frame/menuhost_win32.cpp
  frame/objectcall.cpp
  frame/productinfo.cpp
  frame/settings.cpp
  frame/systemname.cpp
  frame/trace.cpp
  frame/winobject.cpp
  editwin/edittext.cpp
  forms/activation.cpp
  forms/alignitems.cpp
  forms/appicon.cpp
  forms/arrayprops.cpp
  forms/arrayvalues.cpp
  forms/boxproc.cpp
  forms/captionprops.cpp
  forms/clipboard.cpp
  forms/closing.cpp
  forms/colourprops.cpp
  forms/comboprops.cpp
  forms/commands.cpp
  forms/commandtext.cpp
  forms/controlarrays.cpp
  forms/controllist.cpp
  forms/controls.cpp
  forms/eventmessages.cpp
  forms/events.cpp
  forms/fontprops.cpp
  forms/fonts.cpp
  forms/keys.cpp
  forms/listcalls.cpp
  forms/listitems.cpp
  forms/listprops.cpp
  forms/lists.cpp
  forms/load.cpp
  forms/mainloop.cpp
  forms/menuitems.cpp
  forms/metricprops.cpp
  forms/modal.cpp
  forms/mouse.cpp
  forms/painting.cpp
  forms/positionprops.cpp
  forms/rangeprops.cpp
  forms/recordmessages.cpp
  forms/scrolling.cpp
  forms/sendcommand.cpp
  forms/show.cpp
  forms/sizing.cpp
  forms/stateprops.cpp
  forms/textcopy.cpp
  forms/textprops.cpp
  forms/tooltip.cpp
  forms/topwindow.cpp
  forms/windowclass.cpp
  forms/windowprocs.cpp
  graphics/canvas.cpp
  graphics/picturememory.cpp
  graphics/pictureprops.cpp
  graphics/trackrect.cpp
  printing/printer.cpp
  resprops/exports.cpp
)
target_compile_definitions(brelt_parts PUBLIC BRELT_BUILD NOMINMAX WIN32_LEAN_AND_MEAN)
target_include_directories(brelt_parts PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(brelt_parts PRIVATE brelt_library_options)
set(brelt_system_libraries comctl32 gdi32 shell32 user32)

# For DLLs that are freed again; frame/unwindtables.cpp tells why.
add_library(brelt_freed_dll INTERFACE)
target_sources(brelt_freed_dll INTERFACE ${PROJECT_SOURCE_DIR}/frame/unwindtables.cpp)
target_link_options(brelt_freed_dll INTERFACE
  LINKER:--wrap=__register_frame_info LINKER:--wrap=__deregister_frame_info)

add_library(brelt SHARED brelt.def $<TARGET_OBJECTS:brelt_parts>)
target_link_libraries(brelt PRIVATE brelt_core brelt_freed_dll ${brelt_system_libraries})
set_target_properties(brelt PROPERTIES PREFIX "" IMPORT_PREFIX "unused_" LINK_DEPENDS ${PROJECT_SOURCE_DIR}/brelt.def)

# The linker's own import library has undecorated symbols, which stdcall callers don't ask for. So a second one is
# made, whose symbols are decorated and whose names are those that the DLL exports.
file(STRINGS brelt.def exportLines REGEX "=")
set(importDef ${CMAKE_BINARY_DIR}/libbrelt.def)
set(importText "LIBRARY brelt.dll\nEXPORTS\n")
foreach(line IN LISTS exportLines)
  if(line MATCHES "^ +([^ ]+) *= *([^ ]+)$")
    string(APPEND importText "  ${CMAKE_MATCH_2} == ${CMAKE_MATCH_1}\n")
  endif()
endforeach()
file(CONFIGURE OUTPUT ${importDef} CONTENT "${importText}" @ONLY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/brelt.def)
set(importLibrary ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/libbrelt.dll.a)
find_program(DLLTOOL i686-w64-mingw32-dlltool REQUIRED)
add_custom_command(OUTPUT ${importLibrary}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}
  COMMAND ${DLLTOOL} -m i386 -d ${importDef} -l ${importLibrary}
  DEPENDS ${importDef} VERBATIM)
add_custom_target(brelt_import_library ALL DEPENDS ${importLibrary})

# What programs link: the headers and the import library.
add_library(brelt_dev INTERFACE)
target_include_directories(brelt_dev INTERFACE ${PROJECT_SOURCE_DIR}/include)
target_link_libraries(brelt_dev INTERFACE ${importLibrary})
add_dependencies(brelt_dev brelt_import_library brelt)
