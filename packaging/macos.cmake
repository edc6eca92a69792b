# A bundle with the libraries inside, in a disk image.
target_sources(marlbrook PRIVATE "${ICONS}/marlbrook.icns")
set_source_files_properties("${ICONS}/marlbrook.icns" TARGET_DIRECTORY marlbrook PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(marlbrook PROPERTIES
  MACOSX_BUNDLE_BUNDLE_NAME Marlbrook
  MACOSX_BUNDLE_GUI_IDENTIFIER ${APPLICATION}
  MACOSX_BUNDLE_ICON_FILE marlbrook.icns
  MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION})

install(TARGETS marlbrook BUNDLE DESTINATION . COMPONENT folder EXCLUDE_FROM_ALL)
install(DIRECTORY "${MARLBROOK_TREE}/" DESTINATION marlbrook.app/Contents/Resources COMPONENT folder EXCLUDE_FROM_ALL)
find_program(DEPLOY_QT macdeployqt)
install(CODE "execute_process(COMMAND \"${DEPLOY_QT}\" \"\${CMAKE_INSTALL_PREFIX}/marlbrook.app\" COMMAND_ERROR_IS_FATAL ANY)"
  COMPONENT folder EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DragNDrop)
