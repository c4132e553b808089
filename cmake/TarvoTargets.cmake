# One function per kind of target, so that every folder lists files and nothing else.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Programs and DLLs side by side: Windows looks for DLLs beside the program.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

find_program(TARVO_CCACHE ccache)
if(TARVO_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${TARVO_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${TARVO_CCACHE})
endif()

# tarvo_options(TARGET): warnings, sanitizers and definitions common to all of our targets.
function(tarvo_options target)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow=local $<$<BOOL:${TARVO_WERROR}>:-Werror>)
    # gcc 12 finds an overlap in any "literal" + string when it optimises (its bug 105651).
    target_compile_options(${target} PRIVATE -Wno-restrict)
  else()
    # clang builds the fuzz targets only; what it has to say is heard through clang-tidy.
    target_compile_options(${target} PRIVATE -Wall -Wextra)
  endif()
  if(WIN32)
    # DWARF 4: Wine's debugger prints names and lines from it, not from the compiler's default.
    target_compile_options(${target} PRIVATE -gdwarf-4)
    target_compile_definitions(${target} PUBLIC UNICODE _UNICODE WINVER=0x0A00 _WIN32_WINNT=0x0A00 NOMINMAX)
    # One self-contained file each: no compiler runtime DLL beside the programs.
    target_link_options(${target} PRIVATE -static)
  endif()
  if(TARVO_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
    target_compile_definitions(${target} PUBLIC _GLIBCXX_ASSERTIONS)
  endif()
  if(TARVO_BUILD_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# tarvo_sources_here(RESULT [PORTABLE file...] [WINDOWS file...] [POSIX file...]): those of this platform.
function(tarvo_sources_here result)
  cmake_parse_arguments(arg "" "" "PORTABLE;WINDOWS;POSIX" ${ARGN})
  if(WIN32)
    set(${result} ${arg_PORTABLE} ${arg_WINDOWS} PARENT_SCOPE)
  else()
    set(${result} ${arg_PORTABLE} ${arg_POSIX} PARENT_SCOPE)
  endif()
endfunction()

# tarvo_sources(TARGET [PORTABLE file...] [WINDOWS file...] [POSIX file...])
function(tarvo_sources target)
  tarvo_sources_here(sources ${ARGN})
  target_sources(${target} PRIVATE ${sources})
endfunction()

# tarvo_test(NAME [LIBS target...] [PORTABLE file...] [WINDOWS file...] [POSIX file...]
#            [LOCALE ll_CC] [TIMEOUT seconds])
# One test program per folder; every TEST in it is one ctest test named NAME:Suite.Case. LOCALE runs
# the program under that user and system locale (under Wine; natively it means nothing).
function(tarvo_test name)
  cmake_parse_arguments(arg "" "LOCALE;TIMEOUT" "LIBS;PORTABLE;WINDOWS;POSIX" ${ARGN})
  tarvo_sources_here(sources PORTABLE ${arg_PORTABLE} WINDOWS ${arg_WINDOWS} POSIX ${arg_POSIX})
  if(NOT sources)
    return()
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  add_executable(${name} ${sources})
  tarvo_options(${name})
  target_link_libraries(${name} PRIVATE ${arg_LIBS} tarvo_test_support GTest::gmock GTest::gtest)
  # Relative to the test's working folder: a Windows program's environment cannot hold every character
  # that the path of a clone may have.
  file(RELATIVE_PATH source_dir ${CMAKE_CURRENT_BINARY_DIR} ${PROJECT_SOURCE_DIR})
  if(CMAKE_CROSSCOMPILING_EMULATOR)
    # The launcher gives up before ctest does, and says so. It is told on its command line, since only one
    # entry of the property ENVIRONMENT survives the discovery of tests.
    math(EXPR wine_timeout "${arg_TIMEOUT} * 4 / 5")
    set(launcher env WINE_TEST_TIMEOUT=${wine_timeout})
    if(arg_LOCALE)
      list(APPEND launcher WINE_TEST_LANG=${arg_LOCALE})
    endif()
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR "${launcher};${CMAKE_CROSSCOMPILING_EMULATOR}")
  endif()
  gtest_discover_tests(${name}
    TEST_PREFIX ${name}:
    DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
    PROPERTIES TIMEOUT ${arg_TIMEOUT} ENVIRONMENT "TARVO_TEST_SOURCE_DIR=${source_dir}")
endfunction()
