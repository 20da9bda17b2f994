# How every target of the project is built, and what its test programs have in common.

add_library(orvalis_options INTERFACE)
target_compile_options(orvalis_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(ORVALIS_WERROR)
  target_compile_options(orvalis_options INTERFACE -Werror)
endif()
# What is delivered reads files of strangers: hardened as Debian's own programs are.
target_compile_options(orvalis_options INTERFACE $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
target_link_options(orvalis_options INTERFACE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
# A room that is compiled as one soon has all the inlining that the compiler allows to a unit: files
# would be read a quarter slower.
target_compile_options(orvalis_options INTERFACE
  $<$<AND:$<CONFIG:Release>,$<CXX_COMPILER_ID:GNU>>:--param=inline-unit-growth=400>)
if(ORVALIS_SANITIZE)
  target_compile_options(orvalis_options INTERFACE -fsanitize=${ORVALIS_SANITIZE}
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvalis_options INTERFACE -fsanitize=${ORVALIS_SANITIZE})
endif()

# What every test program finds: its sources' data, the project, and a German system.
set(ORVALIS_TEST_ENVIRONMENT LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8)

# orvalis_test_program(NAME SOURCES file... LIBRARIES library...): a test program without its ctest
# entry.
function(orvalis_test_program name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  set_target_properties(${name} PROPERTIES UNITY_BUILD ${ORVALIS_UNITY})
  # Tests are compiled oftener than run.
  target_compile_options(${name} PRIVATE $<$<NOT:$<CONFIG:Release>>:-O0>)
  if(ORVALIS_UNITY)
    # A fixture of a file is none of a header, though the compiler reads it like one.
    target_compile_options(${name} PRIVATE -Wno-subobject-linkage)
  endif()
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE ORVALIS_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data"
                             ORVALIS_SOURCES="${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${TEST_LIBRARIES} GTest::gtest)
endfunction()

# orvalis_test(NAME SOURCES file...): a test of the core.
function(orvalis_test name)
  orvalis_test_program(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE orvalis_companion GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT "${ORVALIS_TEST_ENVIRONMENT}")
endfunction()

# orvalis_window_test(NAME SOURCES file...): a test of windows, run offscreen on screens of 96 and
# of 120 dots per inch, and on one of 96 that the desktop enlarges by half.
function(orvalis_window_test name)
  orvalis_test_program(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE orvalis_test_support Qt6::Test)
  foreach(screen 96 120 96_enlarged)
    string(REGEX MATCH "^[0-9]+" dpi ${screen})
    set(scaling QT_ENABLE_HIGHDPI_SCALING=0)
    if(screen MATCHES enlarged)
      set(scaling QT_SCALE_FACTOR=1.5)
    endif()
    set(file ${PROJECT_SOURCE_DIR}/tests/support/screen-${dpi}.json)
    add_test(NAME ${name}_${screen} COMMAND ${name})
    set_tests_properties(${name}_${screen} PROPERTIES TIMEOUT 120
      ENVIRONMENT "${ORVALIS_TEST_ENVIRONMENT};QT_QPA_PLATFORM=offscreen:configfile=${file};${scaling}")
  endforeach()
endfunction()
