# The trace library of the tests, in place of the host platform's: the complete one, and one for
# every way in which a library can be incomplete or unwilling. tests/trace/ builds them. A test that
# reads the journal links TestTraceLibrary.
set(TRACE_LIBRARY_VARIANTS
    complete
    no_entry_point
    null_record
    null_context
    no_register_function
    no_level_test
    no_output_function
    suppressing
    late_module_id
    unresolved_function)

# trace_library_directory(<variant> <out>)
# Names the directory in which a variant is built; a test finds that variant when LD_LIBRARY_PATH
# holds the directory.
function(trace_library_directory VARIANT OUT)
    set(${OUT} "${CMAKE_BINARY_DIR}/tests/trace/${VARIANT}" PARENT_SCOPE)
endfunction()

# add_trace_variant_tests(<test> [<variant>...])
# Runs a test program, registered already, once more for each of these variants, or for all, because
# a process can load only one library of a name. TRACE_LIBRARY_VARIANT tells the program which it is;
# the registered test itself runs without any.
function(add_trace_variant_tests NAME)
    set(VARIANTS ${ARGN})
    if(NOT VARIANTS)
        set(VARIANTS ${TRACE_LIBRARY_VARIANTS})
    endif()
    get_test_property(${NAME} LABELS LABELS)
    get_test_property(${NAME} ENVIRONMENT ENVIRONMENT)
    set_property(TEST ${NAME} APPEND PROPERTY ENVIRONMENT
        "LD_LIBRARY_PATH=" "TRACE_LIBRARY_VARIANT=missing")
    foreach(VARIANT IN LISTS VARIANTS)
        trace_library_directory(${VARIANT} DIRECTORY)
        add_test(NAME ${NAME}.${VARIANT} COMMAND ${NAME})
        set_tests_properties(${NAME}.${VARIANT} PROPERTIES
            LABELS "${LABELS}"
            ENVIRONMENT "${ENVIRONMENT};LD_LIBRARY_PATH=${DIRECTORY};TRACE_LIBRARY_VARIANT=${VARIANT}")
    endforeach()
endfunction()
