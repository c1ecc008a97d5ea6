# Runs one transcript: cmake -DPROGRAMM=... -DSKRIPT=... -DERWARTET=... -DARBEIT=... -P vergleiche.cmake
#
# The call is by default
#     tabulon-skript --dokumente ARBEIT/dokumente --zufall 1 SKRIPT
# under the locale de_DE.UTF-8 (decimal comma: a number text that followed the locale would show
# at once), in an empty work folder ARBEIT with HOME pointing into it and XDG_DOCUMENTS_DIR unset,
# so that a script run without --dokumente never writes into the real documents folder.
# Comment lines of the script change this:
#   "# aufruf: ARGUMENTS"   (first line only) replaces the arguments; a script not named in them
#                           is read from standard input;
#   "# umgebung: NAME=VALUE ..." sets environment variables (an empty VALUE unsets one);
#   "# status: N"           expects exit status N (default 0);
#   "# datei: NAME"         after the run, appends the line "datei NAME" and the content of the
#                           file NAME of the documents folder (or the line "fehlt") to the output
#                           that is compared, so a transcript shows what a command wrote.
# In ARGUMENTS and VALUE, @DOKUMENTE@ stands for ARBEIT/dokumente (not created beforehand),
# @ARBEIT@ for the work folder and @SKRIPT@ for the script's path.
# A mismatch is reported as a unified diff of all differing lines, together with what the driver
# wrote on standard error.
cmake_minimum_required(VERSION 3.25)

foreach(v PROGRAMM SKRIPT ERWARTET ARBEIT)
    if(NOT DEFINED ${v})
        message(FATAL_ERROR "vergleiche.cmake: ${v} is not set")
    endif()
endforeach()

file(REMOVE_RECURSE ${ARBEIT})
file(MAKE_DIRECTORY ${ARBEIT}/home)
set(dokumente ${ARBEIT}/dokumente)
set(ENV{HOME} ${ARBEIT}/home)
unset(ENV{XDG_DOCUMENTS_DIR})
set(ENV{LC_ALL} de_DE.UTF-8)

file(READ ${SKRIPT} inhalt)
set(argumente --dokumente ${dokumente} --zufall 1 ${SKRIPT})
set(eingabe ${SKRIPT})
macro(platzhalter var)
    string(REPLACE "@DOKUMENTE@" "${dokumente}" ${var} "${${var}}")
    string(REPLACE "@ARBEIT@" "${ARBEIT}" ${var} "${${var}}")
    string(REPLACE "@SKRIPT@" "${SKRIPT}" ${var} "${${var}}")
endmacro()
if(inhalt MATCHES "^#[ \t]*aufruf:([^\r\n]*)")
    set(text "${CMAKE_MATCH_1}")
    platzhalter(text)
    separate_arguments(argumente UNIX_COMMAND "${text}")
endif()
string(REGEX MATCHALL "\n#[ \t]*umgebung:[^\r\n]*" zeilen "\n${inhalt}")
foreach(zeile IN LISTS zeilen)
    string(REGEX REPLACE "^\n#[ \t]*umgebung:" "" zeile "${zeile}")
    separate_arguments(paare UNIX_COMMAND "${zeile}")
    foreach(paar IN LISTS paare)
        if(NOT paar MATCHES "^([A-Za-z_][A-Za-z0-9_]*)=(.*)$")
            message(FATAL_ERROR "${SKRIPT}: not NAME=VALUE in a umgebung line: ${paar}")
        endif()
        set(name ${CMAKE_MATCH_1})
        set(wert "${CMAKE_MATCH_2}")
        platzhalter(wert)
        if(wert STREQUAL "")
            unset(ENV{${name}})
        else()
            set(ENV{${name}} "${wert}")
        endif()
    endforeach()
endforeach()

# A missing German locale would make the locale check pass unseen.
find_program(LOCALE locale)
if(LOCALE AND "$ENV{LC_ALL}" STREQUAL "de_DE.UTF-8")
    execute_process(COMMAND ${LOCALE} -a OUTPUT_VARIABLE locales)
    if(NOT locales MATCHES "de_DE\\.(UTF-8|utf8)")
        message(FATAL_ERROR "The locale de_DE.UTF-8 is missing; scripts/einrichten.sh makes it.")
    endif()
endif()
set(erwarteterStatus 0)
if("\n${inhalt}" MATCHES "\n#[ \t]*status:[ \t]*([0-9]+)")
    set(erwarteterStatus ${CMAKE_MATCH_1})
endif()

set(ausgabe ${ARBEIT}/ausgabe)
set(fehlerdatei ${ARBEIT}/fehler)
execute_process(COMMAND ${PROGRAMM} ${argumente}
                INPUT_FILE ${eingabe}
                OUTPUT_FILE ${ausgabe}
                ERROR_FILE ${fehlerdatei}
                RESULT_VARIABLE status
                TIMEOUT 100)

string(REGEX MATCHALL "\n#[ \t]*datei:[^\r\n]*" zeilen "\n${inhalt}")
foreach(zeile IN LISTS zeilen)
    string(REGEX REPLACE "^\n#[ \t]*datei:[ \t]*" "" name "${zeile}")
    string(STRIP "${name}" name)
    file(APPEND ${ausgabe} "datei ${name}\n")
    if(EXISTS ${dokumente}/${name})
        file(READ ${dokumente}/${name} text)
        file(APPEND ${ausgabe} "${text}")
    else()
        file(APPEND ${ausgabe} "fehlt\n")
    endif()
endforeach()

# The report goes to standard output as it is: message() would wrap and indent the lines.
set(fehler "")
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${ERWARTET} ${ausgabe}
                RESULT_VARIABLE verschieden)
if(NOT verschieden EQUAL 0)
    string(APPEND fehler "standard output differs from ${ERWARTET}. ")
    find_program(DIFF diff)
    if(DIFF)
        execute_process(COMMAND ${DIFF} -u --label erwartet --label ausgabe ${ERWARTET} ${ausgabe})
    else()
        execute_process(COMMAND ${CMAKE_COMMAND} -E echo "The output was:")
        execute_process(COMMAND ${CMAKE_COMMAND} -E cat ${ausgabe})
    endif()
endif()
if(NOT "${status}" STREQUAL "${erwarteterStatus}")
    string(APPEND fehler "Exit status ${status}, expected ${erwarteterStatus}. ")
endif()

if(fehler)
    file(SIZE ${fehlerdatei} groesse)
    if(groesse GREATER 0)
        execute_process(COMMAND ${CMAKE_COMMAND} -E echo "Standard error:")
        execute_process(COMMAND ${CMAKE_COMMAND} -E cat ${fehlerdatei})
    endif()
    message(FATAL_ERROR "${fehler}")
endif()
