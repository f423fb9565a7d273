enable_testing()

# The suffix of the files that tests and benchmarks take for what depends on the system and may be
# missing.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    set(PLATFORM_VARIANT Linux)
else()
    set(PLATFORM_VARIANT None)
endif()

# What every test runs under: no display, one time zone with summer time, the neutral locale.
set(SYSTEM_MONITOR_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen"
    "QT_QUICK_BACKEND=software"
    "TZ=Europe/Berlin"
    "LC_ALL=C.UTF-8"
    "LANGUAGE=")

# add_qt_test(NAME tst_Foo [SOURCES ...] [LIBRARIES ...] [ENVIRONMENT VAR=value ...])
# Builds tst_Foo.cpp (and further sources) into a Qt Test program and registers it. Its label is the
# topmost folder: `ctest -L TraceLog`.
function(add_qt_test)
    cmake_parse_arguments(PARSE_ARGV 0 TEST "" "NAME" "SOURCES;LIBRARIES;ENVIRONMENT")
    add_executable(${TEST_NAME} ${TEST_NAME}.cpp ${TEST_SOURCES})
    set_target_properties(${TEST_NAME} PROPERTIES
        AUTOMOC ON
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests/bin")
    target_link_libraries(${TEST_NAME} PRIVATE SystemMonitorWarnings Qt6::Test ${TEST_LIBRARIES})
    add_test(NAME ${TEST_NAME} COMMAND ${TEST_NAME})
    file(RELATIVE_PATH FOLDER "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
    string(REGEX REPLACE "/.*" "" FOLDER "${FOLDER}")
    # What Qt complains of at exit comes after the last test function.
    set_tests_properties(${TEST_NAME} PROPERTIES
        LABELS "${FOLDER}"
        FAIL_REGULAR_EXPRESSION "instance of an invalid type"
        ENVIRONMENT "${SYSTEM_MONITOR_TEST_ENVIRONMENT};${TEST_ENVIRONMENT}")
endfunction()
