# What `cmake --install` puts where, in four components: runtime, development, tools, documentation.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(cmake/VelTarmHeaders.cmake)

set(VELTARM_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/veltarm)
set(VELTARM_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/VelTarm)
set(VELTARM_INSTALL_SHOPDIR ${CMAKE_INSTALL_DATADIR}/veltarm)
set(VELTARM_INSTALL_TRANSLATIONSDIR ${CMAKE_INSTALL_DATADIR}/veltarm/translations)
set(VELTARM_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/veltarm)

# Other sibling libraries come with a package of their own, which a user of ours has to find first.
set(VELTARM_INSTALL_TARGETS VelTarm VelTarmStatic VelTarmInsight VelTarmInsightStatic)
if(VELTARM_SIBLING_TARGET STREQUAL VelTarmSibling)
  list(APPEND VELTARM_INSTALL_TARGETS VelTarmSibling)
endif()

# An installation works wherever it is moved to: each library and program looks for the libraries beside itself.
set(beside $ORIGIN)
if(APPLE)
  set(beside @loader_path)
endif()
set_target_properties(VelTarm VelTarmInsight VelTarmSibling PROPERTIES INSTALL_RPATH "${beside}")
set_target_properties(VelTarmStatic PROPERTIES EXPORT_NAME Static)
set_target_properties(VelTarmInsight PROPERTIES EXPORT_NAME Insight)
set_target_properties(VelTarmInsightStatic PROPERTIES EXPORT_NAME InsightStatic)
set_target_properties(VelTarmSibling PROPERTIES EXPORT_NAME Sibling)

install(TARGETS ${VELTARM_INSTALL_TARGETS} EXPORT VelTarmTargets
        RUNTIME COMPONENT runtime
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development
        INCLUDES DESTINATION ${VELTARM_INSTALL_INCLUDEDIR})

# veltarm_install_header(root header): keeps the header's folder. Other sibling libraries bring headers of their own.
function(veltarm_install_header root header)
  if(NOT header MATCHES "^sibling/" OR VELTARM_SIBLING_TARGET STREQUAL VelTarmSibling)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ${root}/${header} DESTINATION ${VELTARM_INSTALL_INCLUDEDIR}/${folder} COMPONENT development)
  endif()
endfunction()

veltarm_public_headers(VELTARM_PUBLIC_HEADERS)
foreach(header IN LISTS VELTARM_PUBLIC_HEADERS)
  veltarm_install_header(${PROJECT_SOURCE_DIR} ${header})
endforeach()
foreach(header IN ITEMS frame/VelTarmExport.h sibling/VelSiblingExport.h insight/VelInsightExport.h)
  veltarm_install_header(${VELTARM_GENERATED_DIR} ${header})
endforeach()

configure_package_config_file(cmake/VelTarmConfig.cmake.in ${PROJECT_BINARY_DIR}/VelTarmConfig.cmake
                              INSTALL_DESTINATION ${VELTARM_INSTALL_CMAKEDIR}
                              PATH_VARS VELTARM_INSTALL_TRANSLATIONSDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VelTarmConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VelTarmConfig.cmake ${PROJECT_BINARY_DIR}/VelTarmConfigVersion.cmake
        DESTINATION ${VELTARM_INSTALL_CMAKEDIR} COMPONENT development)
install(FILES ${VELTARM_TRANSLATIONS} DESTINATION ${VELTARM_INSTALL_TRANSLATIONSDIR} COMPONENT development)

# For builds without CMake. Qt 5 wants each user of its headers to be compiled position independent.
set(VELTARM_INSTALL_PKGCONFIGDIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH VELTARM_PC_PREFIX /${VELTARM_INSTALL_PKGCONFIGDIR} /)
string(REGEX REPLACE "/$" "" VELTARM_PC_PREFIX ${VELTARM_PC_PREFIX})
if(VELTARM_SIBLING_TARGET STREQUAL VelTarmSibling)
  set(VELTARM_PC_SIBLING -lVelTarmSibling)
endif()
if(VELTARM_QT EQUAL 5)
  set(VELTARM_PC_CFLAGS -fPIC)
endif()
configure_file(cmake/veltarm.pc.in ${PROJECT_BINARY_DIR}/veltarm.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/veltarm.pc DESTINATION ${VELTARM_INSTALL_PKGCONFIGDIR} COMPONENT development)

install(EXPORT VelTarmTargets NAMESPACE VelTarm:: DESTINATION ${VELTARM_INSTALL_CMAKEDIR} COMPONENT development)

if(VELTARM_BUILD_HOST)
  file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(velshop PROPERTIES INSTALL_RPATH "${beside}/${libraries}")
  install(TARGETS velshop COMPONENT tools)
  install(DIRECTORY shop shop-small DESTINATION ${VELTARM_INSTALL_SHOPDIR} COMPONENT tools)
endif()

install(FILES README.md CHANGELOG.md DESTINATION ${VELTARM_INSTALL_DOCDIR} COMPONENT documentation)
install(DIRECTORY docs DESTINATION ${VELTARM_INSTALL_DOCDIR} COMPONENT documentation)
