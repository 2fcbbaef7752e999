# Installs the build to a place of its own, moves it, and lets a project that knows nothing but that place find, link
# and run it. cmake -D BUILD=... -D WORK=... -D BUILD_TYPE=... -D COMPILER=... -P consumer.cmake
function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output)
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/installed)
file(RENAME ${WORK}/installed ${WORK}/moved)

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/consumer -B ${WORK}/consumer -G Ninja
    -D CMAKE_BUILD_TYPE=${BUILD_TYPE} -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_PREFIX_PATH=${WORK}/moved)
run(${CMAKE_COMMAND} --build ${WORK}/consumer)
foreach(library IN ITEMS VelTarm Static)
  run(${WORK}/consumer/consumer_${library} ${WORK}/moved/share/veltarm/shop)
endforeach()

# The same without CMake.
find_program(pkg_config pkg-config)
if(pkg_config)
  file(GLOB_RECURSE description ${WORK}/moved/veltarm.pc)
  cmake_path(GET description PARENT_PATH folder)
  set(ENV{PKG_CONFIG_PATH} ${folder})
  run(${pkg_config} --cflags --libs veltarm OUTPUT_STRIP_TRAILING_WHITESPACE)
  separate_arguments(flags UNIX_COMMAND "${output}")
  cmake_path(GET folder PARENT_PATH libraries)
  run(${COMPILER} -std=c++17 ${CMAKE_CURRENT_LIST_DIR}/consumer/main.cpp -o ${WORK}/consumer_pc ${flags}
      -Wl,-rpath,${libraries})
  run(${WORK}/consumer_pc ${WORK}/moved/share/veltarm/shop)
endif()

# Where no account is named, velshop takes the installed sample shop, and not that of the source folder.
file(REMOVE_RECURSE ${WORK}/moved/share/veltarm/shop)
file(RENAME ${WORK}/moved/share/veltarm/shop-small ${WORK}/moved/share/veltarm/shop)
run(${WORK}/moved/bin/velshop list)
if(NOT output MATCHES "Print M ")
  message(FATAL_ERROR "The installed velshop prints:\n${output}")
endif()
