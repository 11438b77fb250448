# Run after a test program is linked: writes one ctest entry for each of its suites into FILE. One process for a
# suite, since a thousand processes of a millisecond's work each are a minute of starting. None for a suite that EXCEPT
# matches; PROPERTIES are those of each entry.
# EMULATOR is the command that runs the program, where this machine cannot do so by itself.
execute_process(COMMAND ${EMULATOR} ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE list COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\." suites "${list}")
set(entries "")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "^\n|\\.$" "" suite "${suite}")
    if(EXCEPT AND suite MATCHES "${EXCEPT}")
        continue()
    endif()
    string(APPEND entries "add_test([=[${suite}]=] ${EMULATOR} [=[${PROGRAM}]=] [=[--gtest_filter=${suite}.*]=])\n"
        "set_tests_properties([=[${suite}]=] PROPERTIES TIMEOUT 300 ${PROPERTIES})\n")
endforeach()
file(WRITE ${FILE} "${entries}")
