# What `cmake --install` lays down: headers under their paths from the root, libraries, and the package
# that find_package(Tarvo) reads. The program tarvo is installed by cli/.
include(CMakePackageConfigHelpers)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Tarvo)
set(libraries tarvo_platform tarvo_afx tarvo_qlx tarvo_core)
if(WIN32)
  list(APPEND libraries TarvoLib tarvo_ui tarvo_toolkit)
endif()
foreach(library ${libraries})
  string(REGEX REPLACE "^tarvo_" "" name ${library})
  set_target_properties(${library} PROPERTIES EXPORT_NAME ${name})
endforeach()
install(TARGETS ${libraries} EXPORT Tarvo
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT Tarvo NAMESPACE tarvo:: FILE TarvoExports.cmake DESTINATION ${package})

# A vendor's framework brings its own headers.
set(folders platform tarvo)
foreach(standin AFX TOOLKIT QLX)
  string(TOLOWER standin/${standin} folder)
  if(NOT TARVO_VENDOR_${standin} AND EXISTS ${PROJECT_SOURCE_DIR}/${folder})
    list(APPEND folders ${folder})
  endif()
endforeach()
foreach(folder ${folders})
  # The tables and the workings of one system stay inside.
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder}
    FILES_MATCHING PATTERN "*.h"
    REGEX "_(posix|windows)[.]h$" EXCLUDE
    REGEX "/platform/codepage_[a-z0-9]+[.]h$" EXCLUDE)
endforeach()

write_basic_package_version_file(${PROJECT_BINARY_DIR}/TarvoConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/TarvoConfig.cmake ${PROJECT_BINARY_DIR}/TarvoConfigVersion.cmake
  DESTINATION ${package})
