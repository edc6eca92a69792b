# The libraries lie beside the program. The tree does not: what users change is then in folders of their own, which no update touches.
file(CONFIGURE OUTPUT marlbrook.rc CONTENT "1 ICON \"@ICONS@/marlbrook.ico\"\n" @ONLY)
target_sources(marlbrook PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/marlbrook.rc")

install(TARGETS marlbrook
  RUNTIME_DEPENDENCIES
    PRE_EXCLUDE_REGEXES "^api-ms-" "^ext-ms-"
    POST_EXCLUDE_REGEXES "[/\\\\][Ss]ystem32[/\\\\]"
    DIRECTORIES $ENV{PATH}
  RUNTIME DESTINATION bin)
find_program(DEPLOY_QT windeployqt)
install(CODE "execute_process(COMMAND \"${DEPLOY_QT}\" \"\${CMAKE_INSTALL_PREFIX}/bin/marlbrook.exe\" COMMAND_ERROR_IS_FATAL ANY)")

set(CPACK_GENERATOR NSIS)
set(CPACK_NSIS_DISPLAY_NAME Marlbrook)
set(CPACK_NSIS_PACKAGE_NAME Marlbrook)
set(CPACK_NSIS_MUI_ICON "${ICONS}/marlbrook.ico")
set(CPACK_NSIS_MUI_UNIICON "${ICONS}/marlbrook.ico")
set(CPACK_NSIS_INSTALLED_ICON_NAME bin/marlbrook.exe)
set(CPACK_PACKAGE_EXECUTABLES marlbrook Marlbrook)
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
