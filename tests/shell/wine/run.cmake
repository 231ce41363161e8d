# Builds the tests for Windows and runs them under Wine:
#
#   cmake -D SOURCE=<this folder> -D BINARY=<build folder> -D GTEST=<GoogleTest's sources> -D WERROR=<ON or OFF>
#         -D WINE=<wine> -D WINESERVER=<wineserver> -P run.cmake
#
# Wine has a prefix of its own in the build folder, made at the first run, and needs no display.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed with ${result}: ${ARGN}")
    endif()
endfunction()

run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${BINARY}" -G Ninja --toolchain "${SOURCE}/toolchain.cmake"
    -D CMAKE_BUILD_TYPE=Release -D "QUORIN_GTEST_SOURCES=${GTEST}" -D "QUORIN_WERROR=${WERROR}")
run("${CMAKE_COMMAND}" --build "${BINARY}" -j 2)

set(ENV{WINEPREFIX} "${BINARY}/prefix")
set(ENV{WINEARCH} win64)
set(ENV{WINEDEBUG} -all)
# Neither a browser nor .NET is asked for, and nothing is added to the user's menus.
set(ENV{WINEDLLOVERRIDES} "mscoree,mshtml=;winemenubuilder.exe=d")
unset(ENV{DISPLAY})
execute_process(COMMAND "${WINE}" "${BINARY}/registry_test.exe" ${ARGUMENTS}
    WORKING_DIRECTORY "${BINARY}" RESULT_VARIABLE result TIMEOUT 400)
# Those of this prefix alone.
execute_process(COMMAND "${WINESERVER}" -k)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the tests ended with ${result}")
endif()
