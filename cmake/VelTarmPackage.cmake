# Debian packages of the installed components, by `cpack`; tools/package calls it.
set(library_package libveltarm${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL runtime development documentation)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGE_CONTACT "VelTarm developers <veltarm@example.org>")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR} ${PROJECT_BINARY_DIR}/insight
    ${PROJECT_BINARY_DIR}/sibling)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# The first line of a description is the synopsis, each component's own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(about "VelTarm reads a shop's price list and ordering details, knows what may be
ordered and at what price, and bills orders of prints, photo books,
calendars, cards and gifts in whole cents.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "pricing library of an ordering application for photo products\n${about}")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libveltarm-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(qt5_package qtbase5-dev)
set(qt6_package qt6-base-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} (= ${PROJECT_VERSION}), ${qt${VELTARM_QT}_package} (>= ${VELTARM_QT_MINIMUM}), libexpat1-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "pricing library for photo products - development files\n${about}
This package holds the headers, the static library and the CMake package.")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME libveltarm-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION
    "pricing library for photo products - documentation\n${about}
This package holds the guides and the reference of the headers.")

if(VELTARM_BUILD_HOST)
  list(APPEND CPACK_COMPONENTS_ALL tools)
  set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME velshop)
  set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
  set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION})")
  set(CPACK_COMPONENT_TOOLS_DESCRIPTION
      "order desk for photo products on the command line\n${about}
This program prints prices, discount bands and bills of a shop. Two sample
shops come with it.")
endif()

include(CPack)
