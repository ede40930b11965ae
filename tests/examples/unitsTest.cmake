# Runs `units` and compares what it says, letter for letter.
#
#   cmake -DUNITS=PROGRAM [-DEMULATOR=COMMAND] -P unitsTest.cmake

function(compare what got expected)
  if(NOT "${got}" STREQUAL "${expected}")
    message(SEND_ERROR "units ${ARGN}: its ${what} is\n${got}\ninstead of\n${expected}")
  endif()
endfunction()

# check(RESULT OUTPUT ERRORS ARGUMENTS...): runs the program with $input, if that is set, as its standard input.
function(check result output errors)
  set(file "${UNITS}-test-input.txt")
  file(WRITE "${file}" "${input}")
  execute_process(COMMAND ${EMULATOR} "${UNITS}" ${ARGN} INPUT_FILE "${file}"
    RESULT_VARIABLE gotResult OUTPUT_VARIABLE gotOutput ERROR_VARIABLE gotErrors)
  file(REMOVE "${file}")
  string(REPLACE "\r" "" gotOutput "${gotOutput}")
  string(REPLACE "\r" "" gotErrors "${gotErrors}")
  compare("result" "${gotResult}" "${result}" ${ARGN})
  compare("output" "${gotOutput}" "${output}" ${ARGN})
  compare("errors" "${gotErrors}" "${errors}" ${ARGN})
endfunction()

check(0
"Text    General                    SI       Spice    HSpice   Scientific  Engineering
1.5k    1500.                      1.5k     1.5k     1.5k     1.5e003     1.5e003
10MEG   10000000.                  10M      10X      10MEG    1e007       10e006
10M     10000000.                  10M      10X      10MEG    1e007       10e006
2.5e21  2.5e+021                   2.5Z     2.5e021  2.5e021  2.5e021     2.5e021
50%     0.5                        500m     500m     500m     5e-001      500e-003
-1e-27  -1.00000000000000004e-027  -1e-027  -1e-027  -1e-027  -1e-027     -1e-027
0       0.                         0        0        0        0           0
1e999   inf                        inf      inf      inf      inf         inf
" "" 1.5k 10MEG 10M 2.5e21 50% -1e-27 0 1e999)

# The other reading, fewer digits, zeroes kept; letters behind the unit do not matter.
check(0
"Text    General                   SI     Spice  HSpice  Scientific  Engineering
10Mohm  1.00000000000000002e-002  10.0m  10.0m  10.0m   1.00e-002   10.0e-003
" "" --spice --digits=3 --keep 10Mohm)

# What is no number is told, and what is one is written all the same.
set(input "4.7u\r\n\nabc\n--1\n")
check(1
"Text  General                   SI    Spice  HSpice  Scientific  Engineering
4.7u  4.69999999999999989e-006  4.7u  4.7u   4.7u    4.7e-006    4.7e-006
" "units: \"abc\": Not a number\nunits: \"--1\": Not a number\n")
set(input "")
check(0 "" "")
check(1 "" "units: \"--5\": Not a number\n" -- --5)

check(2 "" "units: unknown option \"--digit\"; see units --help\n" --digit 5)

execute_process(COMMAND ${EMULATOR} "${UNITS}" --help OUTPUT_VARIABLE help RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT help MATCHES "^Usage: units .*--spice.*--help")
  message(SEND_ERROR "units --help does not help:\n${help}")
endif()
