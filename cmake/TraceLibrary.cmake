# trace_library_directory(<variant> <out>)
# Names the directory in which a variant of the test trace library is built; a test finds that
# variant when LD_LIBRARY_PATH holds the directory. tests/trace/CMakeLists.txt lists the variants. A
# test that reads the journal links TestTraceLibrary.
function(trace_library_directory VARIANT OUT)
    set(${OUT} "${CMAKE_BINARY_DIR}/tests/trace/${VARIANT}" PARENT_SCOPE)
endfunction()
