# Read by CPack once for each kind of package: which layout it packs, and how the file is named.
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(layout folder)
  # The folder in it has a name of its own, without the machine.
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
  set(CPACK_PACKAGE_FILE_NAME orvalis-${CPACK_PACKAGE_VERSION}-Linux-${CMAKE_HOST_SYSTEM_PROCESSOR})
else()
  set(layout system)
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build};orvalis;${layout};/")
