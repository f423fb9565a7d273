# Reads Qt's headers once instead of once a file, which takes most of the time out of a build from
# nothing. Off where files must show that they include what they use.
option(SYSTEM_MONITOR_PRECOMPILE_QT "Precompile Qt's headers" OFF)

# Compilers insist that a header was precompiled with the visibility of the file that includes it.
function(add_precompiled_qt NAME VISIBILITY)
    file(CONFIGURE OUTPUT ${NAME}.cpp CONTENT "// Only its precompiled header is of use.\n")
    add_library(${NAME} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${NAME}.cpp")
    # Qt6::Test itself defines paths that differ from directory to directory.
    target_link_libraries(${NAME} PRIVATE Qt6::Gui)
    target_include_directories(${NAME} SYSTEM PRIVATE
        $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
    target_compile_definitions(${NAME} PRIVATE
        $<TARGET_PROPERTY:SystemMonitorWarnings,INTERFACE_COMPILE_DEFINITIONS>)
    set_target_properties(${NAME} PROPERTIES
        CXX_VISIBILITY_PRESET "${VISIBILITY}"
        VISIBILITY_INLINES_HIDDEN $<STREQUAL:${VISIBILITY},hidden>)
    target_precompile_headers(${NAME} PRIVATE <QtCore> <QtGui> <QtTest>)
endfunction()

# The headers are compiled with the definitions of our warnings, so only targets with those share
# them.
function(precompile_qt)
    own_targets(TARGETS)
    foreach(TARGET IN LISTS TARGETS)
        get_target_property(VISIBILITY ${TARGET} CXX_VISIBILITY_PRESET)
        if(VISIBILITY STREQUAL "hidden")
            target_precompile_headers(${TARGET} REUSE_FROM PrecompiledQtHidden)
        else()
            target_precompile_headers(${TARGET} REUSE_FROM PrecompiledQt)
        endif()
    endforeach()
endfunction()

if(SYSTEM_MONITOR_PRECOMPILE_QT)
    add_precompiled_qt(PrecompiledQt default)
    add_precompiled_qt(PrecompiledQtHidden hidden)
    cmake_language(DEFER DIRECTORY "${PROJECT_SOURCE_DIR}" CALL precompile_qt)
endif()
