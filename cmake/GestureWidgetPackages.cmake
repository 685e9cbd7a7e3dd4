# Debian packages: cpack in the build folder makes those of the build's Qt version.
#
#     gesturewidget        gesturewidget-dev         from a Qt 5 build
#     gesturewidget-qt6    gesturewidget-qt6-dev     from a Qt 6 build, beside them
#
# The program, the profiles, the guides and the headers are in those of Qt 5; those of Qt 6
# depend on them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gesturewidget)
set(CPACK_PACKAGE_VENDOR "GestureWidget")
set(CPACK_PACKAGE_CONTACT "GestureWidget developers <gesturewidget@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Runtime Devel)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_DEVEL_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(version "${PROJECT_VERSION}")
if(GESTUREWIDGET_QT EQUAL 5)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME gesturewidget)
  set(CPACK_DEBIAN_DEVEL_PACKAGE_NAME gesturewidget-dev)
  set(CPACK_DEBIAN_DEVEL_PACKAGE_DEPENDS "gesturewidget (= ${version}), qtbase5-dev")
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "librecad, gesturewidget-qt6")
else()
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME gesturewidget-qt6)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "gesturewidget (= ${version})")
  set(CPACK_DEBIAN_DEVEL_PACKAGE_NAME gesturewidget-qt6-dev)
  set(CPACK_DEBIAN_DEVEL_PACKAGE_DEPENDS
    "gesturewidget-dev (= ${version}), gesturewidget-qt6 (= ${version}), qt6-base-dev")
endif()

set(what "Hold the right mouse button in a drawing, drag, and move on towards a command:
a ring of four or eight commands opens under the pointer. Works in unmodified
programs made with Qt Widgets, LibreCAD for one.")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Mouse gestures for drafting programs (Qt ${GESTUREWIDGET_QT})\n${what}")
set(CPACK_COMPONENT_DEVEL_DESCRIPTION "Mouse gestures for drafting programs (development, Qt ${GESTUREWIDGET_QT})
Headers and CMake files for a program that hosts mouse gestures itself.")

include(CPack)
