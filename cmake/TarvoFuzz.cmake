# tarvo_fuzz(NAME [LIBS target...] SOURCES file...)
# One fuzz target: a source with LLVMFuzzerTestOneInput that aborts when its property does not hold.
# In the preset fuzz it becomes the libFuzzer program fuzz_NAME, which scripts/fuzz.sh runs. In the test
# presets the same source becomes an ordinary test that replays every file of fuzz/seeds/NAME, whole and
# cut short; a finding is kept as a test by adding its file there.
function(tarvo_fuzz name)
  cmake_parse_arguments(arg "" "" "LIBS;SOURCES" ${ARGN})
  set(seeds ${PROJECT_SOURCE_DIR}/fuzz/seeds/${name})
  if(NOT IS_DIRECTORY ${seeds})
    message(FATAL_ERROR "fuzz target ${name} has no seeds: ${seeds}")
  endif()
  add_executable(fuzz_${name} ${arg_SOURCES})
  tarvo_options(fuzz_${name})
  target_link_libraries(fuzz_${name} PRIVATE ${arg_LIBS})
  if(TARVO_BUILD_FUZZ)
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
  else()
    target_sources(fuzz_${name} PRIVATE ${PROJECT_SOURCE_DIR}/fuzz/replay_main.cpp)
    # The seeds are named by a relative path: a Windows program takes no path with every character.
    add_test(NAME fuzz_${name}:seeds COMMAND fuzz_${name} . WORKING_DIRECTORY ${seeds})
    set_tests_properties(fuzz_${name}:seeds PROPERTIES TIMEOUT 120)
  endif()
endfunction()
