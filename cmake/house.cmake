# How every target of the house is built: language, warnings, sanitizers, and the three shapes of target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
                                  CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

if(VEXAL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(VEXAL_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

if(VEXAL_FUZZ)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Core)
else()
  find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Qml Quick)
endif()
find_package(simdjson REQUIRED)
find_package(Threads REQUIRED)

# Our own code is held to these; what Qt's tools generate is not ours to mend.
set(VEXAL_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference -Wno-missing-field-initializers -Werror)
# At full optimisation g++ 12 takes the unused half of a moved variant or optional for uninitialized.
if(CMAKE_BUILD_TYPE STREQUAL Release)
  list(APPEND VEXAL_WARNINGS -Wno-maybe-uninitialized)
endif()

set(VEXAL_DEFINITIONS QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)

function(vexal_own target)
  target_compile_options(${target} PRIVATE ${VEXAL_WARNINGS})
  target_compile_definitions(${target} PRIVATE ${VEXAL_DEFINITIONS})
endfunction()

# vexal_headers(name OF library HEADERS ...): headers that most sources include, read once for all that reuse them. A
# source includes what it needs all the same: the linter reads it without.
function(vexal_headers name)
  if(VEXAL_FUZZ)
    return()
  endif()
  cmake_parse_arguments(arg "" "OF" "HEADERS" ${ARGN})
  file(TOUCH ${PROJECT_BINARY_DIR}/${name}.cpp)
  add_library(${name} OBJECT ${PROJECT_BINARY_DIR}/${name}.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${name} PRIVATE ${arg_OF})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
  # Told to the preprocessor as it writes, or the compiler cache cannot know what a source was made of.
  target_compile_options(${name} PRIVATE -fpch-preprocess)
  vexal_own(${name})
endfunction()

function(vexal_reuse target headers)
  if(VEXAL_FUZZ)
    return()
  endif()
  target_precompile_headers(${target} REUSE_FROM ${headers})
  target_compile_options(${target} PRIVATE -fpch-preprocess)
endfunction()

set(VEXAL_OFTEN <algorithm> <chrono> <cmath> <functional> <limits> <memory> <optional> <utility>
                <QDateTime> <QHash> <QJsonObject> <QList> <QObject> <QPointer> <QSet> <QString> <QStringList> <QTimer> <QUrl> <QVariant>)
vexal_headers(vexal_headers_core OF Qt6::Core HEADERS ${VEXAL_OFTEN})
vexal_headers(vexal_headers_screens OF Qt6::Quick
  HEADERS ${VEXAL_OFTEN} <QtQml/qqmlprivate.h> <QAbstractListModel> <QGuiApplication> <QPainter> <QQmlContext> <QQmlEngine> <QQuickItem> <QQuickWindow>)

# vexal_library(name SOURCES ... USES ...): one folder of src as a library. USES is the arrow of the house: what is not
# named there cannot be included.
function(vexal_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;USES;PRIVATELY" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE ${arg_PRIVATELY})
  vexal_own(${name})
  vexal_reuse(${name} vexal_headers_core)
endfunction()

# vexal_screens(name URI uri QML ... SOURCES ... USES ...): one place of the window as a QML module and its C++.
# DERIVES names the modules whose C++ items the C++ items here derive from.
function(vexal_screens name)
  cmake_parse_arguments(arg "" "URI" "QML;SINGLETONS;SOURCES;RESOURCES;USES;IMPORTS;DERIVES" ${ARGN})
  string(REPLACE . / path ${arg_URI})
  foreach(file IN LISTS arg_SINGLETONS)
    set_source_files_properties(${file} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
  endforeach()
  qt_add_qml_module(${name} STATIC
    URI ${arg_URI} VERSION 1.0 RESOURCE_PREFIX /qt-project.org/imports
    OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/${path}
    QML_FILES ${arg_SINGLETONS} ${arg_QML} SOURCES ${arg_SOURCES} RESOURCES ${arg_RESOURCES}
    DEPENDENCIES QtQuick ${arg_DERIVES} IMPORTS ${arg_IMPORTS})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC Qt6::Quick ${arg_USES})
  target_compile_definitions(${name} PRIVATE ${VEXAL_DEFINITIONS})
  vexal_reuse(${name} vexal_headers_screens)
  foreach(file IN LISTS arg_SOURCES)
    if(file MATCHES "\\.cpp$")
      set_source_files_properties(${file} PROPERTIES COMPILE_OPTIONS "${VEXAL_WARNINGS}")
    endif()
  endforeach()
endfunction()

# Every place of the window.
set(VEXAL_WINDOW vexal_ui_root vexal_ui_file vexal_ui_inspector vexal_ui_canvas vexal_ui_sidebar vexal_ui_pieces)

# vexal_shows(program screens...): links places of the window into a program, their QML types included: a static module
# registers itself through its plugin, which nothing else names.
function(vexal_shows program)
  foreach(screens IN LISTS ARGN)
    target_link_libraries(${program} PRIVATE ${screens} ${screens}plugin)
  endforeach()
  # Windows of two tests would take the keyboard from each other: one test at a time shows some.
  string(REGEX MATCH "^test_(.+)$" is_test ${program})
  if(is_test)
    set_tests_properties(${CMAKE_MATCH_1} PROPERTIES RESOURCE_LOCK keyboard)
  endif()
endfunction()

# vexal_test(name SOURCES ... USES ...): a test program that ctest runs.
function(vexal_test name)
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;USES" ${ARGN})
  add_executable(test_${name} ${arg_SOURCES})
  target_link_libraries(test_${name} PRIVATE Qt6::Test ${arg_USES})
  vexal_own(test_${name})
  # Qt's own headers for tests are told each test's folder: those cannot be shared.
  vexal_reuse(test_${name} vexal_headers_core)
  add_test(NAME ${name} COMMAND test_${name})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT})
endfunction()
