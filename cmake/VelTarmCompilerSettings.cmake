# What every target of this project compiles with, and nothing that an embedding project would inherit.
add_library(VelTarmCompilerSettings INTERFACE)

target_compile_options(VelTarmCompilerSettings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                         -Woverloaded-virtual)
target_compile_definitions(VelTarmCompilerSettings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                             QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

# Sizes of Qt 6 have 64 bits where this library's counts are int, as those of Qt 5. What else narrows is the same code,
# and the build with Qt 5 tells.
if(VELTARM_QT EQUAL 5)
  target_compile_options(VelTarmCompilerSettings INTERFACE -Wconversion)
endif()

# The reader of Qt 5 that a guard can be put into, and qSort, which the tests hold the own sort against, are deprecated.
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
