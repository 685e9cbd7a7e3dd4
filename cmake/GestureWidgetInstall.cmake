# What an installation holds, and where. Two components: Runtime is what runs, Devel what a
# program needs that hosts gestures itself.
#
# Builds for Qt 5 and Qt 6 share one prefix: what is built carries the Qt version in its
# name, and what does not is the same file in both. A Qt 6 build has the latter in
# components of their own, so that its packages can leave it to those of Qt 5.
include(CMakePackageConfigHelpers)

set(qt ${GESTUREWIDGET_QT})
set(common_suffix "")
if(qt EQUAL 6)
  set(common_suffix Common)
endif()
set(config_folder "${CMAKE_INSTALL_LIBDIR}/cmake/GestureWidget")

# The launcher and the host's library find all of these from where they are themselves:
# see launcher/programs/PluginFolders.cpp and host/files/InstallPaths.cpp.
install(TARGETS gesturewidget_sdk gesturewidget_host
  EXPORT GestureWidgetQt${qt}Targets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime NAMELINK_COMPONENT Devel)
install(TARGETS gesturewidget_module
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime)
install(TARGETS gesturewidget_inject
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/gesturewidget/qt${qt}/plugins/generic"
  COMPONENT Runtime)

install(TARGETS mouse-gestures
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Runtime${common_suffix})
install(TARGETS mouse-gestures-sheet
  RUNTIME DESTINATION libexec/gesturewidget COMPONENT Runtime${common_suffix})
install(DIRECTORY host/profiles/
  DESTINATION "${CMAKE_INSTALL_DATADIR}/gesturewidget/profiles" COMPONENT Runtime${common_suffix}
  FILES_MATCHING PATTERN "*.json")
install(FILES docs/bindings.schema.json
  DESTINATION "${CMAKE_INSTALL_DATADIR}/gesturewidget" COMPONENT Runtime${common_suffix})
install(FILES docs/user-guide.html
  DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/gesturewidget" COMPONENT Runtime${common_suffix})
install(FILES docs/mouse-gestures.1
  DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT Runtime${common_suffix})
install(FILES launcher/desktop/mouse-gestures.bash
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
  RENAME mouse-gestures COMPONENT Runtime${common_suffix})
install(FILES launcher/desktop/mouse-gestures.desktop
  DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT Runtime${common_suffix})

install(DIRECTORY sdk
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/gesturewidget" COMPONENT Devel${common_suffix}
  FILES_MATCHING PATTERN "*.h")
install(FILES host/session/GestureHost.h host/session/HostExport.h
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/gesturewidget/host" COMPONENT Devel${common_suffix})

configure_package_config_file(cmake/GestureWidgetConfig.cmake.in
  "${CMAKE_BINARY_DIR}/GestureWidgetConfig.cmake" INSTALL_DESTINATION "${config_folder}"
  NO_SET_AND_CHECK_MACRO)
# Until 1.0 the second number says that programs must be built again.
write_basic_package_version_file("${CMAKE_BINARY_DIR}/GestureWidgetConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_BINARY_DIR}/GestureWidgetConfig.cmake"
              "${CMAKE_BINARY_DIR}/GestureWidgetConfigVersion.cmake"
  DESTINATION "${config_folder}" COMPONENT Devel${common_suffix})
install(EXPORT GestureWidgetQt${qt}Targets NAMESPACE GestureWidget::
  DESTINATION "${config_folder}" COMPONENT Devel)
