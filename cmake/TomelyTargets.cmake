# What every target of the project has in common, and the one way to add a library, a program or a
# test.

add_library(tomely_options INTERFACE)
target_include_directories(tomely_options INTERFACE "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}")
target_compile_definitions(
  tomely_options
  INTERFACE QT_NO_CAST_FROM_ASCII
            QT_NO_CAST_TO_ASCII
            QT_NO_URL_CAST_FROM_STRING
            QT_NO_KEYWORDS
            QT_DISABLE_DEPRECATED_BEFORE=0x060400
            TOMELY_VERSION="${PROJECT_VERSION}")
target_compile_options(tomely_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(TOMELY_WERROR)
  target_compile_options(tomely_options INTERFACE -Werror)
endif()

# tomely_library(NAME SOURCES file... LINKS target...): one static library a folder.
function(tomely_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
  target_link_libraries(${name} PUBLIC tomely_options ${ARG_LINKS})
endfunction()

# tomely_program(NAME SOURCES file... LINKS target...)
function(tomely_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
  target_link_libraries(${name} PRIVATE tomely_options ${ARG_LINKS})
endfunction()

# The toolkit's test headers, compiled once for the tests of windows and once for the others: they
# take longer to read than most tests do.
# Without its own definitions, which differ from folder to folder and so would keep the headers from
# being shared.
add_library(tomely_qt_test INTERFACE)
target_link_libraries(tomely_qt_test INTERFACE $<LINK_ONLY:Qt6::Test>)
target_include_directories(tomely_qt_test SYSTEM
                           INTERFACE $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
target_compile_definitions(tomely_qt_test INTERFACE QT_TESTLIB_LIB)

set(tomely_window_targets tomely_platform_widgets tomely_document_widgets tomely_listwindow
                          tomely_editor tomely_app)
foreach(kind plain window)
  set(name tomely_${kind}_test_headers)
  file(WRITE "${PROJECT_BINARY_DIR}/${name}.cpp" "")
  add_library(${name} OBJECT EXCLUDE_FROM_ALL "${PROJECT_BINARY_DIR}/${name}.cpp")
  target_link_libraries(${name} PRIVATE tomely_options Qt6::Gui tomely_qt_test)
  target_precompile_headers(${name} PRIVATE <QByteArray> <QObject> <QSignalSpy> <QString> <QTest>)
endforeach()
target_link_libraries(tomely_window_test_headers PRIVATE Qt6::Widgets Qt6::Network Qt6::Svg)

# tomely_test(NAME [WINDOW] SOURCES file... LINKS target... [TIMEOUT seconds]): one executable, run by
# CTest in a home folder of its own and with the C locale. Without WINDOW it runs on Qt's offscreen
# platform; with WINDOW on a virtual X display of its own, with a window manager.
function(tomely_test name)
  cmake_parse_arguments(ARG "WINDOW" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE tomely_options ${ARG_LINKS} Qt6::Gui tomely_qt_test)
  set(headers tomely_plain_test_headers)
  foreach(target IN LISTS ARG_LINKS)
    if(target IN_LIST tomely_window_targets)
      set(headers tomely_window_test_headers)
    endif()
  endforeach()
  target_precompile_headers(${name} REUSE_FROM ${headers})
  target_compile_definitions(${name} PRIVATE TOMELY_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  set(runner "${PROJECT_SOURCE_DIR}/scripts/run-test")
  if(ARG_WINDOW)
    set(platform xcb)
  else()
    set(platform offscreen)
  endif()
  add_test(NAME ${name} COMMAND "${runner}" ${platform}
                                $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
endfunction()
