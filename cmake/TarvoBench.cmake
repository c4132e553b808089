# tarvo_bench(NAME [LIBS target...] [PEERS pkg-config-module...] [PEER_LIBS library...]
#             [PORTABLE file...] [WINDOWS file...] [POSIX file...])
# One benchmark program. PEERS are the libraries it is measured against, found by pkg-config (PEER_LIBS:
# without it, by the library's name) and linked natively only. Its targets stand in bench/targets/NAME.json.
function(tarvo_bench name)
  cmake_parse_arguments(arg "" "" "LIBS;PEERS;PEER_LIBS;PORTABLE;WINDOWS;POSIX" ${ARGN})
  tarvo_sources_here(sources PORTABLE ${arg_PORTABLE} WINDOWS ${arg_WINDOWS} POSIX ${arg_POSIX})
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  tarvo_options(${name})
  target_link_libraries(${name} PRIVATE ${arg_LIBS} tarvo_bench_support)
  if(arg_PEERS AND NOT WIN32)
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(${name}_peers REQUIRED IMPORTED_TARGET ${arg_PEERS})
    target_link_libraries(${name} PRIVATE PkgConfig::${name}_peers ${arg_PEER_LIBS})
  endif()
endfunction()
