# Fills in a text file's @PLACEHOLDERS@ and writes it gzipped, as Debian wants manual pages and
# changelogs. With CTL, @TOVRA_CTL_OPERATIONS@ becomes the operation list of `tovra-ctl help`
# (troff-escaped), so the manual page cannot drift from the program.
# cmake [-DCTL=tovra-ctl] -DIN=file -DOUT=file.gz -DPROJECT_VERSION=x.y.z -DPACKAGE_VERSION=x.y.z-n
#       -P CompressFile.cmake
set(TOVRA_CTL_OPERATIONS "")
if(DEFINED CTL)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=TOVRA_CONTROL_SOCKET ${CTL} help
                    OUTPUT_VARIABLE help RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${CTL} help failed: ${result}")
    endif()
    string(REGEX REPLACE "^.*\nOperations:\n" "" operations "${help}")
    string(REGEX REPLACE "\n$" "" operations "${operations}")
    string(REGEX REPLACE "(^|\n)  " "\\1" operations "${operations}")
    string(REPLACE "\\" "\\\\" operations "${operations}")
    string(REPLACE "-" "\\-" operations "${operations}")
    set(TOVRA_CTL_OPERATIONS "${operations}")
endif()
get_filename_component(name ${IN} NAME)
set(page ${OUT}.tmp/${name})
configure_file(${IN} ${page} @ONLY)
execute_process(COMMAND gzip -9 -n -c ${page} OUTPUT_FILE ${OUT} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "gzip failed for ${OUT}")
endif()
file(REMOVE_RECURSE ${OUT}.tmp)
