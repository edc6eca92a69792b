# Run when a program of GoogleTest has been linked: writes to FILE a test of CTest for each suite of PROGRAM, with this LABEL and LIMIT
# and MORE properties, but for the one named ELSEWHERE. EMULATOR, if there is one, runs it.
# Not one for each case: a start takes 0.1 s under the sanitizers, three times what a case takes.
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" --gtest_list_tests OUTPUT_VARIABLE list TIMEOUT "${LIMIT}" COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "\n[A-Za-z0-9_/]+\\." suites "\n${list}")
if(NOT suites)
  message(FATAL_ERROR "${PROGRAM} lists no tests")
endif()
set(tests "")
string(REPLACE ";" " " more "${MORE}")
set(command "")
foreach(word ${EMULATOR} "${PROGRAM}")
  string(APPEND command " [[${word}]]")
endforeach()
foreach(suite ${suites})
  string(REGEX REPLACE "\n(.*)\\." "\\1" suite "${suite}")
  if(suite STREQUAL "${ELSEWHERE}")
    continue()
  endif()
  string(APPEND tests "add_test([[${LABEL}/${suite}]]${command} [[--gtest_filter=${suite}.*]])\n"
    "set_tests_properties([[${LABEL}/${suite}]] PROPERTIES LABELS ${LABEL} TIMEOUT ${LIMIT} ENVIRONMENT QT_QPA_PLATFORM=offscreen ${more})\n")
endforeach()
file(WRITE "${FILE}" "${tests}")
