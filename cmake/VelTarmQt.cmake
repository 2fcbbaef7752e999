# Finds the Qt that everything here is built with. Its targets are Qt${VELTARM_QT}::Core and so on, its commands
# qt${VELTARM_QT}_add_resources and so on: the two versions never meet in one build.
set(VELTARM_QT "" CACHE STRING "Major version of Qt, 5 or 6; empty: what is installed, 5 when both are")
set_property(CACHE VELTARM_QT PROPERTY STRINGS "" 5 6)
if(NOT VELTARM_QT MATCHES "^[56]?$")
  message(FATAL_ERROR "VELTARM_QT is \"${VELTARM_QT}\": choose 5 or 6.")
endif()

set(VELTARM_QT5_MINIMUM 5.15)
set(VELTARM_QT6_MINIMUM 6.4)

# veltarm_find_qt(components...): a macro, as Qt 5 leaves variables behind that its commands need.
macro(veltarm_find_qt)
  find_package(Qt${VELTARM_QT} ${VELTARM_QT_MINIMUM} REQUIRED COMPONENTS ${ARGN})
endmacro()

# Left open, it is the choice of an embedding project, or what can be found.
foreach(version IN ITEMS 5 6)
  if(VELTARM_QT STREQUAL "" AND TARGET Qt${version}::Core)
    set(VELTARM_QT ${version})
  endif()
endforeach()
if(VELTARM_QT STREQUAL "")
  find_package(Qt5 ${VELTARM_QT5_MINIMUM} QUIET COMPONENTS Core Xml)
  if(Qt5_FOUND)
    set(VELTARM_QT 5)
  else()
    set(VELTARM_QT 6)
  endif()
endif()
set(VELTARM_QT_MINIMUM ${VELTARM_QT${VELTARM_QT}_MINIMUM})
veltarm_find_qt(Core Xml)
message(STATUS "VelTarm builds with Qt ${Qt${VELTARM_QT}_VERSION}")
