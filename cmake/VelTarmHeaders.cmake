# veltarm_public_headers(result): the headers that an installation holds, relative to the source tree. Public is what
# marks something for export, what such a header includes, and the loop over child elements, which hosts use as well.
# The generated ones aren't among them.
function(veltarm_public_headers result)
  file(GLOB headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
       ${PROJECT_SOURCE_DIR}/bill/*.h ${PROJECT_SOURCE_DIR}/frame/*.h ${PROJECT_SOURCE_DIR}/insight/*.h
       ${PROJECT_SOURCE_DIR}/ordering/*.h ${PROJECT_SOURCE_DIR}/price/*.h ${PROJECT_SOURCE_DIR}/product/*.h ${PROJECT_SOURCE_DIR}/sibling/*.h)
  set(pending frame/VelChildElements.h)
  foreach(header IN LISTS headers)
    file(STRINGS ${PROJECT_SOURCE_DIR}/${header} exports REGEX "VEL(TARM|SIBLING|INSIGHT)_EXPORT ")
    if(exports)
      list(APPEND pending ${header})
    endif()
  endforeach()

  set(public "")
  while(pending)
    list(POP_FRONT pending header)
    if(NOT header IN_LIST public AND NOT EXISTS ${VELTARM_GENERATED_DIR}/${header})
      list(APPEND public ${header})
      file(STRINGS ${PROJECT_SOURCE_DIR}/${header} includes REGEX "^#include \"")
      list(TRANSFORM includes REPLACE "^#include \"(.*)\".*" "\\1")
      list(APPEND pending ${includes})
    endif()
  endwhile()
  list(SORT public)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${public})
  set(${result} ${public} PARENT_SCOPE)
endfunction()
