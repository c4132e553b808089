# cmake -D BUILD=folder -D WORK=folder -D LIBDIR=lib -D "CONFIGURE=-D;..." [-D "LAUNCHER=program"] -P run.cmake
# Installs the build, builds the consumer against what was installed and against nothing else, and runs it.
function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}\nended with ${status}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# Remnants of an earlier run would hide what is no longer installed.
file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
run(${CMAKE_COMMAND} -G Ninja -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/build
  -D Tarvo_DIR=${WORK}/prefix/${LIBDIR}/cmake/Tarvo ${CONFIGURE})
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${LAUNCHER} ${WORK}/build/consumer${SUFFIX})
message("${output}")
