# One routine for each kind of target, so that a folder's CMakeLists.txt is one line.
#
#   zorv_library(<folder> [USES <folder>...] [LINKS <package target>...])
#       static library zorv_<folder> of all sources of the folder it is called in
#   zorv_test(<folder> [USES <folder>...] [LINKS <target>...])
#       test binary test_<folder> of all sources of the folder it is called in

find_package(PkgConfig REQUIRED)
find_package(fmt REQUIRED)
pkg_check_modules(SQLITE REQUIRED IMPORTED_TARGET sqlite3)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-i18n icu-uc)

# Precompiled headers shorten the daily builds. The release and fuzz builds do without, so that a
# missing include is found there.
option(ZORV_PCH "Precompile the standard headers that nearly every file includes" OFF)

add_library(zorv_flags INTERFACE)
target_compile_options(zorv_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# g++ 12 warns falsely: of overlapping copies in std::string at -O3, of unset variables under sanitizers.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(zorv_flags INTERFACE -Wno-restrict)
  if(CMAKE_BUILD_TYPE STREQUAL "Release")
    # What it believes to see only after inlining is shown, but does not stop a release.
    target_compile_options(zorv_flags INTERFACE
      -Wno-error=array-bounds -Wno-error=stringop-overflow -Wno-error=stringop-overread
      -Wno-error=maybe-uninitialized -Wno-error=dangling-pointer)
  endif()
  if(ZORV_PCH)
    # The same falsehood in other warnings, once the header is precompiled.
    target_compile_options(zorv_flags INTERFACE -Wno-array-bounds -Wno-stringop-overread -Wno-stringop-overflow)
  endif()
  if(ZORV_SANITIZE)
    target_compile_options(zorv_flags INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
if(ZORV_SANITIZE)
  target_compile_options(zorv_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zorv_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ZORV_FUZZ)
  target_compile_options(zorv_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
  target_link_options(zorv_flags INTERFACE -fsanitize=address,undefined)
endif()
target_include_directories(zorv_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_link_libraries(zorv_flags INTERFACE fmt::fmt)

set(ZORV_PCH_HEADERS <algorithm> <array> <filesystem> <functional> <map> <memory> <optional> <sstream>
    <string> <string_view> <utility> <variant> <vector> <fmt/format.h>)

# zorv_precompile(<target> <first target> [<header>...]): the first target makes the precompiled
# header, all others use it.
function(zorv_precompile target first)
  if(NOT ZORV_PCH)
    return()
  endif()
  if(target STREQUAL first)
    target_precompile_headers(${target} PRIVATE ${ZORV_PCH_HEADERS} ${ARGN})
  else()
    target_precompile_headers(${target} REUSE_FROM ${first})
  endif()
endfunction()

function(zorv_library folder)
  cmake_parse_arguments(ARG "" "" "USES;LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  add_library(zorv_${folder} STATIC ${sources})
  list(TRANSFORM ARG_USES PREPEND zorv_)
  target_link_libraries(zorv_${folder} PUBLIC zorv_flags ${ARG_USES} PRIVATE ${ARG_LINKS})
  zorv_precompile(zorv_${folder} zorv_base)
endfunction()

function(zorv_test folder)
  cmake_parse_arguments(ARG "" "" "USES;LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${folder} ${sources})
  list(TRANSFORM ARG_USES PREPEND zorv_)
  target_link_libraries(test_${folder} PRIVATE
    zorv_flags ${ARG_USES} ${ARG_LINKS} zorv_test_support GTest::gtest GTest::gtest_main)
  target_compile_definitions(test_${folder} PRIVATE
    ZORV_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}" ZORV_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  add_test(NAME ${folder} COMMAND test_${folder})
  if(ZORV_SANITIZE)
    set_tests_properties(${folder} PROPERTIES
      ENVIRONMENT "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")
  endif()
endfunction()
