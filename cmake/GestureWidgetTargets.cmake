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
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# gesturewidget_defaults(TARGET): language, warnings, Qt's generators and the rules for this
# project's sources. Sources include a file by its path from the project's root.
function(gesturewidget_defaults target)
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
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined
                                             -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
endfunction()

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

# gesturewidget_test(NAME SOURCES... [LIBRARIES...] [LABELS...]): a Qt test program that runs
# offscreen. An unexpected Qt warning fails it, see tests/support/FatalWarnings.h.
function(gesturewidget_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  gesturewidget_defaults(${name})
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
