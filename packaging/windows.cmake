# The programs with the libraries that they take, which lie beside them:
#     cmake --install      bin and share/marlbrook, which windows/setup.nsi makes a setup of: what users change is then in folders of
#                          their own, which no update touches
#     cpack -G ZIP         a folder for any place of the user's: the program beside References and Sound files, which it then uses
configure_file("${HERE}/windows/marlbrook.manifest.in" marlbrook.manifest @ONLY)

# DescribeProgram(PROGRAM DESCRIPTION): its icon, its manifest and what the Explorer tells of it.
function(DescribeProgram program description)
  configure_file("${HERE}/windows/program.rc.in" ${program}.rc @ONLY)
  target_sources(${program} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${program}.rc")
endfunction()
DescribeProgram(marlbrook "Marlbrook, tally counter for the microscope")
DescribeProgram(marlbrook-figure "Marlbrook, figure and tables of a counted core")

# CompilersLibrary(NAME): writes it without its symbols, which are most of it, into a folder of the build, and adds it to COMPILERS_LIBRARIES.
set(STRIPPED "${CMAKE_CURRENT_BINARY_DIR}/libraries")
file(MAKE_DIRECTORY "${STRIPPED}")
macro(CompilersLibrary name)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${name} OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND "${CMAKE_STRIP}" -o "${STRIPPED}/${name}" "${file}" COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND COMPILERS_LIBRARIES "${STRIPPED}/${name}")
endmacro()
CompilersLibrary(libgcc_s_seh-1.dll)
CompilersLibrary(libssp-0.dll)
CompilersLibrary(libstdc++-6.dll)
CompilersLibrary(libwinpthread-1.dll)

set(PLUGINS platforms/qwindows styles/qwindowsvistastyle imageformats/qjpeg imageformats/qsvg iconengines/qsvgicon)

# What the build makes runs where it lies, the tests on their screen in memory too.
add_custom_target(libraries_beside_programs ALL
  COMMAND "${CMAKE_COMMAND}" -E copy_if_different $<TARGET_RUNTIME_DLLS:marlbrook> ${COMPILERS_LIBRARIES} "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
  COMMAND_EXPAND_LISTS VERBATIM)
foreach(plugin ${PLUGINS} platforms/qoffscreen)
  configure_file("${MARLBROOK_WINDOWS_SDK}/plugins/${plugin}.dll" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${plugin}.dll" COPYONLY)
endforeach()

# LayPrograms(FOLDER WHAT...): the programs, their libraries with their licences, and the toolkit's plug-ins, in this folder of what is installed.
function(LayPrograms folder)
  install(TARGETS marlbrook marlbrook-figure RUNTIME DESTINATION "${folder}" ${ARGN})
  install(FILES $<TARGET_RUNTIME_DLLS:marlbrook> ${COMPILERS_LIBRARIES} DESTINATION "${folder}" ${ARGN})
  foreach(plugin ${PLUGINS})
    get_filename_component(kind ${plugin} DIRECTORY)
    install(FILES "${MARLBROOK_WINDOWS_SDK}/plugins/${plugin}.dll" DESTINATION "${folder}/${kind}" ${ARGN})
  endforeach()
  foreach(package qt6-base-dev qt6-svg-dev libsdl2-2.0-0 libsdl2-mixer-2.0-0 libcli11-dev gcc-mingw-w64-base mingw-w64-x86-64-dev)
    install(FILES "/usr/share/doc/${package}/copyright" DESTINATION "${folder}/licences" RENAME "${package}.txt" ${ARGN})
  endforeach()
  install(FILES "${HERE}/windows/licences.txt" DESTINATION "${folder}/licences" RENAME README.txt ${ARGN})
  foreach(licence LGPL-3 GPL-2 GPL-3)
    install(FILES "/usr/share/common-licenses/${licence}" DESTINATION "${folder}/licences" ${ARGN})
  endforeach()
endfunction()
LayPrograms(bin)
LayPrograms(. COMPONENT folder EXCLUDE_FROM_ALL)
install(DIRECTORY "${MARLBROOK_TREE}/" DESTINATION . COMPONENT folder EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "Marlbrook-${PROJECT_VERSION}-windows")
