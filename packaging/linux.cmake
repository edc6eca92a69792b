# Menu entry, icons, man pages, completion and what Debian wants in every package.
include(GNUInstallDirs)
set(DOCUMENTS "${CMAKE_INSTALL_DATADIR}/doc/marlbrook")

foreach(program marlbrook marlbrook-figure)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION . COMPONENT folder EXCLUDE_FROM_ALL)
  endif()
endforeach()
install(DIRECTORY "${MARLBROOK_TREE}/" DESTINATION . COMPONENT folder EXCLUDE_FROM_ALL)

install(FILES "${HERE}/linux/${APPLICATION}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${HERE}/linux/${APPLICATION}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(DIRECTORY "${ICONS}/hicolor" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons")
install(FILES "${HERE}/linux/copyright" "${CMAKE_SOURCE_DIR}/docs/driver.md" DESTINATION "${DOCUMENTS}")

# InstallPacked(FILE FOLDER): packed as Debian wants man pages and changelogs, to the same bytes each time.
find_program(GZIP gzip REQUIRED)
function(InstallPacked file folder)
  get_filename_component(name "${file}" NAME)
  set(packed "${CMAKE_CURRENT_BINARY_DIR}/${name}.gz")
  add_custom_command(
    OUTPUT "${packed}"
    COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${CMAKE_CURRENT_BINARY_DIR}/${name}"
    COMMAND "${GZIP}" -9nf "${CMAKE_CURRENT_BINARY_DIR}/${name}"
    DEPENDS "${file}"
    COMMENT "Packing ${name}"
    VERBATIM)
  add_custom_target(packed_${name} ALL DEPENDS "${packed}")
  install(FILES "${packed}" DESTINATION "${folder}")
endfunction()
install(FILES "${HERE}/linux/marlbrook-figure.bash-completion" DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
  RENAME marlbrook-figure)
install(FILES "${HERE}/linux/lintian-overrides" DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" RENAME marlbrook)
InstallPacked("${HERE}/linux/marlbrook.1" "${CMAKE_INSTALL_MANDIR}/man1")
InstallPacked("${HERE}/linux/marlbrook-drive.1" "${CMAKE_INSTALL_MANDIR}/man1")
InstallPacked("${HERE}/linux/marlbrook-figure.1" "${CMAKE_INSTALL_MANDIR}/man1")
InstallPacked("${HERE}/linux/changelog" "${DOCUMENTS}")

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS  # whatever the umask of who makes the package
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)  # the plug-ins for X11 and JPEG come with the libraries
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, fonts-dejavu-extra, xdg-utils")  # the fonts: slanted letters, for genera; the last one opens the manual
