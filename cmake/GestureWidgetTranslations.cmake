# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Compiles texts in other languages and embeds them.

# The one of this Qt version first. Both write the same format, so either will do. Debian's
# /usr/bin/lrelease only works after a Qt version was chosen for it, so it comes last.
find_program(LRELEASE_PROGRAM lrelease
  PATHS "/usr/lib/qt${GESTUREWIDGET_QT}/bin" /usr/lib/qt5/bin /usr/lib/qt6/bin NO_DEFAULT_PATH)
find_program(LRELEASE_PROGRAM NAMES lrelease-qt${GESTUREWIDGET_QT} lrelease REQUIRED)

# gesturewidget_translations(NAME): an object library GestureWidget::NAMETranslations with the texts
# of translations/NAME_*.ts. They are resources, :/gesturewidget/translations/NAME/LANGUAGE.qm. Like
# the images they register themselves when a library or program that links this is loaded.
function(gesturewidget_translations name)
  file(GLOB texts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/${name}_*.ts")
  set(folder "${PROJECT_BINARY_DIR}/translations/${name}")
  set(compiled "")
  set(entries "")
  foreach(text ${texts})
    get_filename_component(language "${text}" NAME_WLE)
    string(REPLACE "${name}_" "" language "${language}")
    add_custom_command(
      OUTPUT "${folder}/${language}.qm"
      COMMAND "${LRELEASE_PROGRAM}" -silent "${text}" -qm "${folder}/${language}.qm"
      DEPENDS "${text}"
      COMMENT "Compiling the texts of ${name} in ${language}"
      VERBATIM)
    list(APPEND compiled "${folder}/${language}.qm")
    string(APPEND entries "<file>${language}.qm</file>")
  endforeach()
  file(MAKE_DIRECTORY "${folder}")
  file(CONFIGURE OUTPUT "${folder}/${name}.qrc" CONTENT
    "<RCC><qresource prefix=\"/gesturewidget/translations/${name}\">${entries}</qresource></RCC>\n")
  set(embedded "${folder}/qrc_${name}.cpp")
  add_custom_command(
    OUTPUT "${embedded}"
    COMMAND Qt${GESTUREWIDGET_QT}::rcc --name translations_${name} --output "${embedded}"
            "${folder}/${name}.qrc"
    DEPENDS ${compiled} "${folder}/${name}.qrc"
    COMMENT "Embedding the texts of ${name}"
    VERBATIM)
  add_library(gesturewidget_${name}_translations OBJECT "${embedded}")
  add_library(GestureWidget::${name}Translations ALIAS gesturewidget_${name}_translations)
  gesturewidget_defaults(gesturewidget_${name}_translations WITHOUT_WIDGETS)
  set_target_properties(gesturewidget_${name}_translations PROPERTIES AUTOMOC OFF AUTORCC OFF)
  target_link_libraries(gesturewidget_${name}_translations PUBLIC Qt${GESTUREWIDGET_QT}::Core)
endfunction()
