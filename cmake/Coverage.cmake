# Builds for gcov, and reports what the tests of the plug-in and its libraries reach of them. The
# target `coverage-report` prints it, leaves pages with every line in coverage/, and fails when the
# tests take less than 95 % of the branches.
option(SYSTEM_MONITOR_COVERAGE "Count the branches that tests take" OFF)

if(SYSTEM_MONITOR_COVERAGE)
    find_program(GCOVR gcovr REQUIRED)
    add_compile_options(--coverage -fprofile-abs-path)
    add_link_options(--coverage)
    # Left out are branches that no test can choose: those for exceptions, and what the compiler adds
    # after an initialiser list, around a static object and to an operator new. One that may yield
    # null counts.
    add_custom_target(coverage-report
        COMMAND "${CMAKE_COMMAND}" -E make_directory coverage
        COMMAND "${GCOVR}" --root "${PROJECT_SOURCE_DIR}" --object-directory "${CMAKE_BINARY_DIR}"
            --filter "${PROJECT_SOURCE_DIR}/(PluginSystemMonitor|SystemResourceMonitor|TraceLog)/src/"
            --exclude-throw-branches --exclude-unreachable-branches
            "--exclude-branches-by-pattern=^ *};$|^Q_DECLARE_METATYPE|.*QVariantMap{|.*= new (?!.std::nothrow)"
            --branches --print-summary --html-details coverage/index.html
            --fail-under-branch 95
        WORKING_DIRECTORY "${CMAKE_BINARY_DIR}"
        VERBATIM)
endif()
