# Reads our C++ targets with clang-tidy and clazy while they are built; the compiler has to be
# `clazy`. The list of clang-tidy's checks is .clang-tidy, that of clazy's is here.
option(SYSTEM_MONITOR_STATIC_ANALYSIS "Build with clang-tidy and clazy" OFF)

# Level 1 includes level 0. What follows it are checks of the higher levels that suit this tree, and
# those of the lower ones that do not:
# - connect-not-normalized: the host's contract gives the signatures, blanks included
# - strict-iterators: Qt 6 erases by const_iterator
set(CLAZY_CHECKS
    level1
    assert-with-side-effects
    base-class-event
    container-inside-loop
    heap-allocated-small-trivial-type
    isempty-vs-count
    qproperty-type-mismatch
    qstring-allocations
    rule-of-three
    signal-with-return-value
    tr-non-literal
    virtual-call-ctor
    no-connect-not-normalized
    no-strict-iterators)
list(JOIN CLAZY_CHECKS "," CLAZY_CHECKS)

function(analyse)
    own_targets(TARGETS)
    foreach(TARGET IN LISTS TARGETS)
        set(CHECKS "${CLAZY_CHECKS}")
        # A host that loads a plug-in waits for its static objects; a program waits for its own alone.
        get_target_property(DIRECTORY ${TARGET} SOURCE_DIR)
        if(NOT DIRECTORY MATCHES "/(PluginSystemMonitor|SystemResourceMonitor|TraceLog)$")
            string(APPEND CHECKS ",no-non-pod-global-static")
        endif()
        set_target_properties(${TARGET} PROPERTIES CXX_CLANG_TIDY "${CLANG_TIDY};--quiet;--warnings-as-errors=*")
        target_compile_options(${TARGET} PRIVATE
            "SHELL:-Xclang -plugin-arg-clazy -Xclang ${CHECKS}")
    endforeach()
    # Qt's tools write all that is compiled here, and clazy has an opinion of it.
    set_target_properties(Dashboard PROPERTIES COMPILE_WARNING_AS_ERROR OFF)
endfunction()

if(SYSTEM_MONITOR_STATIC_ANALYSIS)
    find_program(CLANG_TIDY clang-tidy REQUIRED)
    # What moc writes is not ours to judge: one check that finds nothing, since none is an error.
    file(CONFIGURE OUTPUT .clang-tidy CONTENT "Checks: '-*,llvm-twine-local'\n")
    cmake_language(DEFER DIRECTORY "${PROJECT_SOURCE_DIR}" CALL analyse)
endif()
