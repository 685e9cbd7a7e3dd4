# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Settings and functions that all targets of this project share.

# Builds for Qt 5 and Qt 6 share one prefix. Most files have the Qt version in their name. The rest
# are the same in both builds: a Qt 6 build installs them in the components RuntimeCommon and
# DevelCommon, so that its packages can leave them to those of Qt 5.
set(GESTUREWIDGET_COMMON_SUFFIX "")
if(GESTUREWIDGET_QT EQUAL 6)
  set(GESTUREWIDGET_COMMON_SUFFIX Common)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # ccache refuses precompiled headers unless it may ignore what they hold of times and macros.
  # Builds of other clones share the cache if paths are relative to the clone.
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" CCACHE_NOHASHDIR=1
    "${CCACHE_PROGRAM}")
endif()

# gesturewidget_defaults(TARGET [WITHOUT_WIDGETS] [TEST]): language, warnings, Qt's generators and the
# rules for this project's sources. Sources include a file by its path from the project's root. Targets
# that do not link Qt Widgets say so. A TEST is compiled without optimisation, and each of its sources
# alone.
function(gesturewidget_defaults target)
  cmake_parse_arguments(arg "WITHOUT_WIDGETS;TEST" "" "" ${ARGN})
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 17
    CXX_STANDARD_REQUIRED ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    AUTOMOC ON
    AUTORCC ON
    BUILD_RPATH_USE_ORIGIN ON)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion)
  target_compile_definitions(${target} PRIVATE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x050d00)
  if(GESTUREWIDGET_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
      $<$<BOOL:${GESTUREWIDGET_FUZZ}>:-fsanitize=fuzzer-no-link>)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
  set(headers gesturewidget_precompiled)
  if(arg_TEST)
    target_compile_options(${target} PRIVATE -O0)
    set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)
    set(headers gesturewidget_precompiled_tests)
  endif()
  if(GESTUREWIDGET_PRECOMPILE AND NOT arg_WITHOUT_WIDGETS)
    target_precompile_headers(${target} REUSE_FROM ${headers})
    # Without it, GCC leaves ccache no trace of the headers.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()

# The headers of Qt and of the standard library take most of the time of a build. They are compiled
# once if GESTUREWIDGET_PRECOMPILE is on. A source that lacks an include is then found by the builds
# that have it off, such as that of the benchmarks.
if(GESTUREWIDGET_PRECOMPILE)
  # gesturewidget_precompile(NAME HEADERS... LIBRARIES... [OPTIONS...])
  function(gesturewidget_precompile name)
    cmake_parse_arguments(arg "" "" "HEADERS;LIBRARIES;OPTIONS" ${ARGN})
    find_package(Qt${GESTUREWIDGET_QT} REQUIRED COMPONENTS ${arg_LIBRARIES})
    file(WRITE "${CMAKE_BINARY_DIR}/${name}.cpp" "// Only its headers matter.\n")
    add_library(${name} OBJECT "${CMAKE_BINARY_DIR}/${name}.cpp")
    gesturewidget_defaults(${name} WITHOUT_WIDGETS)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_compile_options(${name} PRIVATE ${arg_OPTIONS})
    list(TRANSFORM arg_LIBRARIES PREPEND Qt${GESTUREWIDGET_QT}::)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
  endfunction()
  # Those that most sources include, some by way of others. More of them would be slower to load.
  set(headers
    <QApplication> <QComboBox> <QDialog> <QDir> <QFile> <QHash> <QJsonArray> <QJsonDocument>
    <QJsonObject> <QLabel> <QLineEdit> <QMainWindow> <QMenu> <QMenuBar> <QMouseEvent> <QPainter>
    <QPointer> <QTimer> <QToolBar> <QVector>
    <algorithm> <cmath> <functional> <memory> <optional> <utility> <vector>)
  gesturewidget_precompile(gesturewidget_precompiled HEADERS ${headers} LIBRARIES Widgets)
  if(GESTUREWIDGET_TESTS)
    # Nearly each test includes QtTest.
    gesturewidget_precompile(gesturewidget_precompiled_tests
      HEADERS ${headers} <QProcess> <QTableView> <QTemporaryDir> <QtTest>
      LIBRARIES Test Widgets OPTIONS -O0)
  endif()
endif()

# gesturewidget_public_headers(FOLDER PATHS...): headers and folders of headers that are for other
# programs, from the current source folder. Their names after <gesturewidget/FOLDER/ are the same in
# an installation and, through links, in the build tree. FOLDER may be "".
function(gesturewidget_public_headers folder)
  string(JOIN "/" public gesturewidget ${folder})
  file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/include/${public}")
  foreach(path ${ARGN})
    get_filename_component(name ${path} NAME)
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${path}" "${CMAKE_BINARY_DIR}/include/${public}/${name}"
      SYMBOLIC)
    if(IS_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/${path}")
      install(DIRECTORY ${path} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${public}"
        COMPONENT Devel${GESTUREWIDGET_COMMON_SUFFIX} FILES_MATCHING PATTERN "*.h")
    else()
      install(FILES ${path} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${public}"
        COMPONENT Devel${GESTUREWIDGET_COMMON_SUFFIX})
    endif()
  endforeach()
endfunction()

# gesturewidget_library(NAME ALIAS SOURCES... [LIBRARIES...]): a static library that becomes part
# of the module. ALIAS is its name after "GestureWidget::".
function(gesturewidget_library name alias)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  add_library(GestureWidget::${alias} ALIAS ${name})
  gesturewidget_defaults(${name})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${arg_LIBRARIES})
endfunction()

# Calls moc for a target's only source, which includes the result. For a hundred small programs this takes
# a minute less than AUTOMOC, which starts CMake and compiles one more file for each.
function(gesturewidget_moc target source)
  get_filename_component(source "${source}" ABSOLUTE)
  get_filename_component(stem "${source}" NAME_WE)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
  file(MAKE_DIRECTORY "${folder}")
  add_custom_command(OUTPUT "${folder}/${stem}.moc"
    COMMAND Qt${GESTUREWIDGET_QT}::moc --no-notes "${source}" -o "${folder}/${stem}.moc"
    DEPENDS "${source}" VERBATIM)
  set_target_properties(${target} PROPERTIES AUTOMOC OFF)
  target_sources(${target} PRIVATE "${folder}/${stem}.moc")
  target_include_directories(${target} PRIVATE "${folder}")
endfunction()

# gesturewidget_test(NAME SOURCES... [LIBRARIES...] [LABELS...]): a Qt test program that runs
# offscreen. An unexpected Qt warning fails it, see tests/support/FatalWarnings.h.
function(gesturewidget_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  gesturewidget_defaults(${name} TEST)
  if(arg_SOURCES MATCHES "^[^;]*\\.cpp$")
    gesturewidget_moc(${name} "${arg_SOURCES}")
  endif()
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_compile_definitions(${name} PRIVATE TESTS_SOURCE_DIR="${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} Qt${GESTUREWIDGET_QT}::Widgets
                                        Qt${GESTUREWIDGET_QT}::Test)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LANG=C.UTF-8;LANGUAGE=;QT_QPA_PLATFORMTHEME=;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
    TIMEOUT 120
    LABELS "${arg_LABELS}")
endfunction()
