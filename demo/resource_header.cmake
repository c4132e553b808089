# cmake -DHEADER=resource.h -DOUT=resource_header.rc -P resource_header.cmake
# The header's definitions as a resource of UTF-16LE text, which the language table reads at run time. A
# wide string in a raw-data resource is exactly that, so no converter is needed.
file(STRINGS ${HEADER} lines REGEX "^#define ")
set(script "// Generated from resource.h.\nIDR_RESOURCE_HEADER RESOURCE_HEADER\nBEGIN\n")
list(LENGTH lines count)
set(index 0)
foreach(line IN LISTS lines)
  math(EXPR index "${index} + 1")
  if(index LESS count)
    string(APPEND script "    L\"${line}\\r\\n\",\n")
  else()
    string(APPEND script "    L\"${line}\\r\\n\"\n")
  endif()
endforeach()
string(APPEND script "END\n")
file(WRITE ${OUT} "${script}")
