# What every target of this project compiles with, and nothing that an embedding project would inherit.
add_library(VelTarmCompilerSettings INTERFACE)

target_compile_options(VelTarmCompilerSettings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                                                         -Woverloaded-virtual)
target_compile_definitions(VelTarmCompilerSettings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                             QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

# The design names qSort, QRegExp, fromTime_t and the SAX reader on purpose; Qt 5.15 calls them deprecated.
target_compile_options(VelTarmCompilerSettings INTERFACE -Wno-deprecated-declarations)

if(VELTARM_WARNINGS_AS_ERRORS)
  target_compile_options(VelTarmCompilerSettings INTERFACE -Werror)
endif()

if(VELTARM_SANITIZERS)
  target_compile_options(VelTarmCompilerSettings INTERFACE -fsanitize=${VELTARM_SANITIZERS} -fno-sanitize-recover=all
                                                           -fno-omit-frame-pointer)
  target_link_options(VelTarmCompilerSettings INTERFACE -fsanitize=${VELTARM_SANITIZERS})
endif()

set_property(TARGET VelTarmCompilerSettings PROPERTY INTERFACE_LINK_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/VelTarmExports.map)
target_link_options(
  VelTarmCompilerSettings INTERFACE
  $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:-Wl,--version-script=${CMAKE_CURRENT_LIST_DIR}/VelTarmExports.map>)
