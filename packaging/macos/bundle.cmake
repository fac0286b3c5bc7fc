# Makes the target tarvo an application bundle: Info.plist, texts, icon, and tarvo-status beside it. Included where the
# target is made, since only there can files be added to it.
set(TARVO_BUNDLE ${CMAKE_CURRENT_LIST_DIR})
set(TARVO_APPLICATION io.github.tarvo.Tarvo)
set(TARVO_BUNDLE_EXECUTABLE Tarvo)
configure_file(${TARVO_BUNDLE}/Info.plist.in Info.plist @ONLY)
set_target_properties(tarvo PROPERTIES
  MACOSX_BUNDLE ON
  OUTPUT_NAME ${TARVO_BUNDLE_EXECUTABLE}
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_BINARY_DIR}/Info.plist)

find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(drawing ${PROJECT_SOURCE_DIR}/packaging/tarvo.svg)
set(pictures)
set(picture_files)
foreach(size 16 32 64 128 256 512 1024)
  set(picture ${CMAKE_CURRENT_BINARY_DIR}/icon/${size}.png)
  add_custom_command(OUTPUT ${picture} COMMAND render_icon ${drawing} ${size} ${picture}
    DEPENDS render_icon ${drawing} VERBATIM)
  list(APPEND pictures ${size}=${picture})
  list(APPEND picture_files ${picture})
endforeach()
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/icon)
set(icon ${CMAKE_CURRENT_BINARY_DIR}/Tarvo.icns)
add_custom_command(OUTPUT ${icon}
  COMMAND Python3::Interpreter ${TARVO_BUNDLE}/make_icns.py ${icon} ${pictures}
  DEPENDS ${TARVO_BUNDLE}/make_icns.py ${picture_files} VERBATIM)
target_sources(tarvo PRIVATE ${icon})
set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
foreach(language en cs)
  set(texts ${TARVO_BUNDLE}/${language}.lproj/InfoPlist.strings)
  target_sources(tarvo PRIVATE ${texts})
  set_source_files_properties(${texts} PROPERTIES MACOSX_PACKAGE_LOCATION Resources/${language}.lproj)
endforeach()

add_custom_command(TARGET tarvo POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:tarvo-status> $<TARGET_FILE_DIR:tarvo>/tarvo-status
  VERBATIM)
add_dependencies(tarvo tarvo-status)
