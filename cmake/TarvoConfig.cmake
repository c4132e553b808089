# find_package(Tarvo): tarvo::core, and for Windows tarvo::ui; below them tarvo::afx, tarvo::qlx and
# tarvo::platform. On Windows copy $<TARGET_RUNTIME_DLLS:your_program> beside your program.
include(${CMAKE_CURRENT_LIST_DIR}/TarvoExports.cmake)
