# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Lists the installed files. The component Runtime holds what runs. Devel holds what a program
# needs to host gestures itself; its headers are listed beside their sources.
include(CMakePackageConfigHelpers)

set(qt ${GESTUREWIDGET_QT})
set(common ${GESTUREWIDGET_COMMON_SUFFIX})
set(config_folder "${CMAKE_INSTALL_LIBDIR}/cmake/GestureWidget")

# Binaries keep the run path that they were linked with. If CMake rewrites it during installation,
# it puts an empty entry into that of the build tree, and the loader takes that for the current
# folder. The plug-in is in another place after installation, so it is linked a second time.
set_target_properties(gesturewidget_host gesturewidget_module PROPERTIES BUILD_WITH_INSTALL_RPATH ON)
add_library(gesturewidget_inject_installed MODULE $<TARGET_OBJECTS:gesturewidget_inject>)
gesturewidget_defaults(gesturewidget_inject_installed)
foreach(property OUTPUT_NAME LINK_LIBRARIES LINK_OPTIONS INSTALL_RPATH)
  get_target_property(value gesturewidget_inject ${property})
  set_target_properties(gesturewidget_inject_installed PROPERTIES ${property} "${value}")
endforeach()
set_target_properties(gesturewidget_inject_installed PROPERTIES
  AUTOMOC OFF
  BUILD_WITH_INSTALL_RPATH ON
  LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/installed/plugins/generic")
set_target_properties(gesturewidget_inject PROPERTIES
  BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN/../../lib")

# The launcher and the host library find these from their own place, see
# launcher/programs/PluginFolders.cpp and host/files/InstallPaths.cpp.
install(TARGETS gesturewidget_sdk gesturewidget_host
  EXPORT GestureWidgetQt${qt}Targets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime NAMELINK_COMPONENT Devel)
install(TARGETS gesturewidget_module
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime)
install(TARGETS gesturewidget_inject_installed
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/gesturewidget/qt${qt}/plugins/generic"
  COMPONENT Runtime)

install(TARGETS mouse-gestures mouse-gestures-settings
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Runtime${common})
install(TARGETS mouse-gestures-sheet
  RUNTIME DESTINATION libexec/gesturewidget COMPONENT Runtime${common})
install(DIRECTORY host/profiles/
  DESTINATION "${CMAKE_INSTALL_DATADIR}/gesturewidget/profiles" COMPONENT Runtime${common}
  FILES_MATCHING PATTERN "*.json")
install(FILES docs/bindings.schema.json docs/profile.schema.json
  DESTINATION "${CMAKE_INSTALL_DATADIR}/gesturewidget" COMPONENT Runtime${common})
if(GESTUREWIDGET_DOCS) # the dialog's help is looked for there, see host/services/HelpGuide.cpp
  install(DIRECTORY "${CMAKE_BINARY_DIR}/docs/"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/gesturewidget/html" COMPONENT Runtime${common})
endif()
install(FILES docs/mouse-gestures.1 docs/mouse-gestures-settings.1
  DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT Runtime${common})
install(FILES launcher/desktop/mouse-gestures.bash
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
  RENAME mouse-gestures COMPONENT Runtime${common})
install(FILES launcher/desktop/mouse-gestures.desktop
  DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT Runtime${common})
install(FILES launcher/desktop/mouse-gestures.svg
  DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" COMPONENT Runtime${common})
install(FILES launcher/desktop/org.gesturewidget.mouse_gestures.metainfo.xml
  DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT Runtime${common})

# For programs built with CMake.
configure_package_config_file(cmake/GestureWidgetConfig.cmake.in
  "${CMAKE_BINARY_DIR}/GestureWidgetConfig.cmake" INSTALL_DESTINATION "${config_folder}"
  NO_SET_AND_CHECK_MACRO)
# Before 1.0 a new minor version means that programs must be built again.
write_basic_package_version_file("${CMAKE_BINARY_DIR}/GestureWidgetConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_BINARY_DIR}/GestureWidgetConfig.cmake"
              "${CMAKE_BINARY_DIR}/GestureWidgetConfigVersion.cmake"
  DESTINATION "${config_folder}" COMPONENT Devel${common})
install(EXPORT GestureWidgetQt${qt}Targets NAMESPACE GestureWidget::
  DESTINATION "${config_folder}" COMPONENT Devel)

# For programs built with anything else.
set(pkgconfig_folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH prefix_from_pkgconfig "/${pkgconfig_folder}" "/")
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")
foreach(library sdk host)
  set(file "${CMAKE_BINARY_DIR}/gesturewidget-${library}-qt${qt}.pc")
  configure_file(cmake/gesturewidget-${library}.pc.in "${file}" @ONLY)
  install(FILES "${file}" DESTINATION "${pkgconfig_folder}" COMPONENT Devel)
endforeach()
