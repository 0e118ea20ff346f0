# The few shared build rules: compiler settings, one library a floor, programs beside each other, tests by folder.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()
option(JORV_TESTS "Tests und Messprogramme mitbauen" ON)
option(JORV_FUZZ "Die Ziele in fuzz/ als libFuzzer-Programme bauen (clang)" OFF)

find_program(CCACHE ccache)
if(CCACHE)
  # Clones share what they compile, precompiled headers included.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

# Programs that call each other by name lie in one folder.
set(JORV_PROGRAMME ${CMAKE_BINARY_DIR}/programme)
if(WIN32 AND CMAKE_CROSSCOMPILING)
  set(JORV_WURZEL Z:)  # the drive under which Wine shows the root of this host
endif()

# Shared as Debian packs it; for Windows static, so that a program is one file.
if(WIN32)
  find_package(GeographicLib REQUIRED COMPONENTS STATIC)
else()
  find_package(GeographicLib REQUIRED COMPONENTS SHARED)
endif()

add_library(jv_regeln INTERFACE)
target_include_directories(jv_regeln INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(jv_regeln INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -finput-charset=UTF-8 -fexec-charset=UTF-8)
target_compile_definitions(jv_regeln INTERFACE _GLIBCXX_ASSERTIONS)
# Where memory errors would be exploited they end the program; the checked containers above stay on in releases too.
# Not together with the sanitizers, which see more.
if(UNIX AND NOT CMAKE_CXX_FLAGS MATCHES "sanitize" AND NOT JORV_FUZZ)
  target_compile_options(jv_regeln INTERFACE -fstack-protector-strong -fstack-clash-protection)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    target_compile_options(jv_regeln INTERFACE -fcf-protection)
  endif()
  if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")  # needs optimization
    target_compile_definitions(jv_regeln INTERFACE _FORTIFY_SOURCE=2)
  endif()
  target_link_options(jv_regeln INTERFACE -Wl,-z,relro,-z,now)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
endif()
if(CMAKE_CXX_FLAGS MATCHES "sanitize" AND NOT JORV_FUZZ)
  # Between their checks the compiler loses sight of an optional's flag; the other builds judge that warning.
  target_compile_options(jv_regeln INTERFACE -Wno-error=maybe-uninitialized)
endif()
if(JORV_FUZZ)
  # The other compiler is here for its fuzzer; what it warns of is judged by the one that builds what is delivered.
  # Words to compare with come from the dictionaries: watching each comparison of a byte costs more than it finds.
  target_compile_options(jv_regeln INTERFACE -fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp -Wno-error)
endif()

function(jv_ordner ordner)
  if(EXISTS ${CMAKE_SOURCE_DIR}/${ordner}/CMakeLists.txt)
    add_subdirectory(${CMAKE_SOURCE_DIR}/${ordner})
  endif()
endfunction()

# jv_bibliothek(jv_daten QUELLEN a.cpp b.cpp ETAGEN jv_projekt jv_geo)
function(jv_bibliothek name)
  cmake_parse_arguments(A "" "" "QUELLEN;ETAGEN" ${ARGN})
  add_library(${name} STATIC ${A_QUELLEN})
  target_link_libraries(${name} PUBLIC jv_regeln ${A_ETAGEN})
endfunction()

# jv_programm(wa2 KLEIN QUELLEN wa2_main.cpp ETAGEN jv_suite); KLEIN: started for each rover, so linked without shared libraries,
# which halves its start.
function(jv_programm name)
  cmake_parse_arguments(A "KLEIN" "" "QUELLEN;ETAGEN" ${ARGN})
  add_executable(${name} ${A_QUELLEN})
  target_link_libraries(${name} PRIVATE jv_regeln ${A_ETAGEN})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${JORV_PROGRAMME})
  if(A_KLEIN AND UNIX AND NOT CMAKE_CXX_FLAGS MATCHES "sanitize")
    target_link_options(${name} PRIVATE -static)
  endif()
endfunction()

# jv_test(test_daten QUELLEN test_a.cpp ETAGEN jv_daten): one test program a folder; every TEST is a ctest of its own,
# under an emulator, which takes long to start, every program.
# Tests whose suite name begins with Lang_ run only in the long run (label lang).
function(jv_test name)
  cmake_parse_arguments(A "" "" "QUELLEN;ETAGEN" ${ARGN})
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${A_QUELLEN})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE jv_regeln ${A_ETAGEN} GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE JORV_PROGRAMME="${JORV_WURZEL}${JORV_PROGRAMME}"
    JORV_QUELLEN="${JORV_WURZEL}${CMAKE_SOURCE_DIR}" JORV_DATEN="${JORV_WURZEL}${CMAKE_SOURCE_DIR}/../shared/daten")
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name} --gtest_filter=-Lang_*)
    add_test(NAME ${name}.lang COMMAND ${name} --gtest_filter=Lang_*)
    # Where Wine looks for programs behind its own folders: the solver, which a user has on the search path.
    set_tests_properties(${name} ${name}.lang PROPERTIES ENVIRONMENT "WINEPATH=${JORV_WURZEL}${CMAKE_FIND_ROOT_PATH}/bin" TIMEOUT 1800)
    set_tests_properties(${name}.lang PROPERTIES LABELS lang)
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_FILTER -Lang_* PROPERTIES TIMEOUT 120)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_FILTER Lang_* TEST_SUFFIX .lang PROPERTIES LABELS lang TIMEOUT 1800)
endfunction()
