# Embeds the icons that symbols.txt names, under their system symbol names.
find_path(TARVO_ICON_FOLDER cpu-fill.svg
  HINTS /usr/share/bootstrap-icons /usr/share/icons/bootstrap-icons
  PATH_SUFFIXES svg icons share/bootstrap-icons/svg
  DOC "Folder of the Bootstrap Icons set's SVG files" REQUIRED)

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/symbols.txt)
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/symbols.txt rows REGEX "^[^#]")
set(icons)
foreach(row IN LISTS rows)
  separate_arguments(row)
  list(GET row 0 symbol)
  list(GET row 1 icon)
  if(NOT icon STREQUAL "drawn")
    configure_file(${TARVO_ICON_FOLDER}/${icon}.svg ${CMAKE_CURRENT_BINARY_DIR}/embedded/${symbol} COPYONLY)
    list(APPEND icons ${CMAKE_CURRENT_BINARY_DIR}/embedded/${symbol})
  endif()
endforeach()

qt_add_resources(tarvo_qt_windows symbols PREFIX /symbols BASE ${CMAKE_CURRENT_BINARY_DIR}/embedded FILES ${icons})
