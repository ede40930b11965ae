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

# Typed numbers are answered line by line, in columns that suit nearly all. What is no number is told, and what is one
# is written all the same.
set(input "4.7u\r\n\nabc\n-1.5e-27\n--1\n")
check(1
"Text            General                    SI             Spice          HSpice         Scientific     Engineering
4.7u            4.69999999999999989e-006   4.7u           4.7u           4.7u           4.7e-006       4.7e-006
-1.5e-27        -1.50000000000000006e-027  -1.5e-027      -1.5e-027      -1.5e-027      -1.5e-027      -1.5e-027
" "units: \"abc\": Not a number\nunits: \"--1\": Not a number\n")
set(input "")
check(0 "" "")
check(1 "" "units: \"--5\": Not a number\n" -- --5)

# Letters belong to a unit; anything else behind a number is told, and the number not written.
check(0
"Text    General                  SI     Spice  HSpice  Scientific  Engineering
3mil    7.6200000000000009e-005  76.2u  76.2u  76.2u   7.62e-005   76.2e-006
10kOhm  10000.                   10k    10k    10k     1e004       10e003
1e      1.e+018                  1E     1e018  1e018   1e018       1e018
1e5     100000.                  100k   100k   100k    1e005       100e003
5.      5.                       5      5      5       5           5
 1.5 \t  1.5                      1.5    1.5    1.5     1.5         1.5
" "" 3mil 10kOhm 1e 1e5 5. " 1.5 \t")
check(1
"Text  General  SI  Spice  HSpice  Scientific  Engineering
2     2.       2   2      2       2           2
" "units: \"1,5\": \",5\" stands behind the number
units: \"5 V\": \"V\" stands behind the number
units: \"10Ohm\": \"Ohm\" stands behind the number
units: \"1A\": \"A\" stands behind the number
units: \"1k5\": \"5\" stands behind the number
units: \"1e5e5\": \"5\" stands behind the number
units: \"0x10\": \"10\" stands behind the number
units: \"2.2.2\": \".2\" stands behind the number
units: \"10kOhm/sq\": \"/sq\" stands behind the number
" 1,5 "5 V" 10Ohm 1A 1k5 1e5e5 0x10 2.2.2 10kOhm/sq 2)
check(1 "" "units: \"1e\": \"e\" stands behind the number\nunits: \"1Z\": \"Z\" stands behind the number\n" --spice 1e 1Z)

check(2 "" "units: unknown option \"--digit\"; see units --help\n" --digit 5)
foreach(digits abc 0 19 -1 4.5 99999999999 "")
  check(2 "" "units: --digits wants a number from 1 to 18, not \"${digits}\"; see units --help\n" --digits=${digits} 5)
endforeach()
check(0
"Text  General               SI    Spice  HSpice  Scientific  Engineering
0.1   0.100000000000000006  100m  100m   100m    1e-001      100e-003
" "" --digits=1 0.1)

execute_process(COMMAND ${EMULATOR} "${UNITS}" --help OUTPUT_VARIABLE help RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT help MATCHES "^Usage: units .*--spice.*1 to 18.*--help")
  message(SEND_ERROR "units --help does not help:\n${help}")
endif()
