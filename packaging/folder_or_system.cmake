# Read by cpack for each kind of package: a folder to put anywhere and a bundle hold the component "folder" alone.
if(CPACK_GENERATOR MATCHES "^(TGZ|ZIP|DragNDrop)$")
  string(REPLACE ";ALL;" ";folder;" CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_INSTALL_CMAKE_PROJECTS}")
endif()
