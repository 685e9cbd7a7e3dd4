# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Draws the images of dialog buttons at build time. The folder above includes this file; its target
# gesturewidget_hostcode embeds the images.
#
# The images are in a separate resource file, and the library embeds that file as a whole. So the
# images appear only when the host registers the file, see ButtonImages.cpp.
add_executable(gesturewidget_drawbuttons resources/DrawButtons.cpp)
gesturewidget_defaults(gesturewidget_drawbuttons WITHOUT_WIDGETS)
target_link_libraries(gesturewidget_drawbuttons PRIVATE Qt${GESTUREWIDGET_QT}::Gui)

set(buttons "${CMAKE_CURRENT_BINARY_DIR}/buttons")
set(embedded_buttons "${buttons}/qrc_hostbuttons.cpp")
configure_file(resources/buttons.qrc "${buttons}/buttons.qrc" COPYONLY)
configure_file(resources/hostbuttons.qrc "${buttons}/hostbuttons.qrc" COPYONLY)
add_custom_command(
  OUTPUT "${embedded_buttons}"
  COMMAND gesturewidget_drawbuttons "${buttons}"
  COMMAND Qt${GESTUREWIDGET_QT}::rcc --binary --output "${buttons}/buttons.rcc" "${buttons}/buttons.qrc"
  COMMAND Qt${GESTUREWIDGET_QT}::rcc --no-compress --name gesturewidget_hostbuttons
          --output "${embedded_buttons}" "${buttons}/hostbuttons.qrc"
  DEPENDS gesturewidget_drawbuttons "${buttons}/buttons.qrc" "${buttons}/hostbuttons.qrc"
  COMMENT "Drawing the button images"
  VERBATIM)
target_sources(gesturewidget_hostcode PRIVATE "${embedded_buttons}")
set_source_files_properties("${embedded_buttons}" PROPERTIES SKIP_AUTOMOC ON)
