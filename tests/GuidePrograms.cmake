# The programs that the guides show. Each block "cpp program" is built as an integrator builds it and runs in the source
# folder; a block "text output" right behind it is what the program prints.

if(CMAKE_SCRIPT_MODE_FILE) # runs PROGRAM, with the output that the file EXPECTED holds
  cmake_minimum_required(VERSION 3.25)
  execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE printed RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "The program ended with ${result}.")
  endif()
  if(EXPECTED)
    file(READ ${EXPECTED} expected)
    if(NOT "${printed}" STREQUAL "${expected}")
      message(FATAL_ERROR "The program prints\n${printed}")
    endif()
  endif()
  return()
endif()

# veltarm_add_guide_program(name code output): one program, as the target guide_name and the test docs/name
function(veltarm_add_guide_program name code output)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/guides)
  file(CONFIGURE OUTPUT ${folder}/${name}.cpp CONTENT "${code}" @ONLY)
  add_executable(guide_${name} ${folder}/${name}.cpp)
  target_link_libraries(guide_${name} PRIVATE VelTarm::VelTarm VelTarmCompilerSettings)
  target_compile_options(guide_${name} PRIVATE -UQT_NO_CAST_FROM_ASCII -UQT_NO_CAST_TO_ASCII) # as an integrator has them
  set(expected)
  if(output)
    file(CONFIGURE OUTPUT ${folder}/${name}.txt CONTENT "${output}" @ONLY)
    set(expected -DEXPECTED=${folder}/${name}.txt)
  endif()
  add_test(NAME docs/${name} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
           COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:guide_${name}> ${expected}
                   -P ${CMAKE_CURRENT_FUNCTION_LIST_FILE})
  set_tests_properties(docs/${name} PROPERTIES TIMEOUT 120)
endfunction()

file(GLOB guides CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/docs/*.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${guides})
foreach(guide IN LISTS guides)
  get_filename_component(name ${guide} NAME_WE)
  file(READ ${guide} rest)
  set(number 1)
  while("${rest}" MATCHES "\n```cpp program\n([^`]*)\n```\n(\n*```text output\n([^`]*)```)?")
    set(block "${CMAKE_MATCH_0}")
    veltarm_add_guide_program(${name}_${number} "${CMAKE_MATCH_1}" "${CMAKE_MATCH_3}")
    string(REPLACE "${block}" "" rest "${rest}")
    math(EXPR number "${number} + 1")
  endwhile()
  if("${rest}" MATCHES "```cpp program")
    message(FATAL_ERROR "${guide}: a program can't hold backticks, and its block needs an end")
  endif()
endforeach()
