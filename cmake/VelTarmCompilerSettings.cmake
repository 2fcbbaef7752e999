# What every target of this project compiles with, and nothing that an embedding project would inherit.
add_library(VelTarmCompilerSettings INTERFACE)

option(VELTARM_PRECOMPILE "Read Qt's headers once for each library: builds faster, and hides a missing include" OFF)

# veltarm_precompile(target headers...): those that most of its sources include
function(veltarm_precompile target)
  if(VELTARM_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# veltarm_compile_options(flags...): those that the compiler knows
function(veltarm_compile_options)
  foreach(flag IN LISTS ARGN)
    string(MAKE_C_IDENTIFIER "VELTARM_CXX${flag}" is_known)
    check_cxx_compiler_flag(${flag} ${is_known})
    target_compile_options(VelTarmCompilerSettings INTERFACE $<$<BOOL:${${is_known}}>:${flag}>)
  endforeach()
endfunction()

if(MSVC)
  veltarm_compile_options(/W4 /utf-8) # it knows -Wall, too, and means everything that there is
else()
  veltarm_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
endif()
target_compile_definitions(VelTarmCompilerSettings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                             QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

# Sizes of Qt 6 have 64 bits where this library's counts are int, as those of Qt 5. What else narrows is the same code,
# and the build with Qt 5 tells.
if(VELTARM_QT EQUAL 5)
  veltarm_compile_options(-Wconversion)
endif()

# The reader of Qt 5 that a guard can be put into, and qSort, which the tests hold the own sort against, are deprecated.
veltarm_compile_options(-Wno-deprecated-declarations)

# Macros of Qt 6, QSKIP for one, may be called without their last arguments, which clang takes for an extension.
veltarm_compile_options(-Wno-gnu-zero-variadic-macro-arguments)

if(VELTARM_WARNINGS_AS_ERRORS)
  target_compile_options(VelTarmCompilerSettings INTERFACE $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()

if(VELTARM_SANITIZERS)
  target_compile_options(VelTarmCompilerSettings INTERFACE -fsanitize=${VELTARM_SANITIZERS} -fno-sanitize-recover=all
                                                           -fno-omit-frame-pointer)
  target_link_options(VelTarmCompilerSettings INTERFACE -fsanitize=${VELTARM_SANITIZERS})
endif()

set(exports ${CMAKE_CURRENT_LIST_DIR}/VelTarmExports.map)
check_linker_flag(CXX "-Wl,--version-script=${exports}" VELTARM_LINKER_HAS_VERSION_SCRIPTS)
if(VELTARM_LINKER_HAS_VERSION_SCRIPTS)
  set_property(TARGET VelTarmCompilerSettings PROPERTY INTERFACE_LINK_DEPENDS ${exports})
  target_link_options(VelTarmCompilerSettings INTERFACE
                      $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:-Wl,--version-script=${exports}>)
endif()
