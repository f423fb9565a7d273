# Reads Qt's headers once instead of once a file, which takes most of the time out of a build from
# nothing. Off where files must show that they include what they use.
option(SYSTEM_MONITOR_PRECOMPILE_QT "Precompile Qt's headers" OFF)

# Compilers insist that a header was precompiled with the visibility of the file that includes it, GCC
# also with its macros, as far as the header asks for them. That keeps out Qt Test, which asks for
# other modules.
function(add_precompiled_qt NAME VISIBILITY)
    file(CONFIGURE OUTPUT ${NAME}.cpp CONTENT "// Only its precompiled header is of use.\n")
    add_library(${NAME} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${NAME}.cpp")
    target_link_libraries(${NAME} PRIVATE Qt6::Core)
    target_include_directories(${NAME} SYSTEM PRIVATE
        $<TARGET_PROPERTY:Qt6::Gui,INTERFACE_INCLUDE_DIRECTORIES>)
    # -Wpedantic among them decides on a macro.
    target_compile_options(${NAME} PRIVATE
        $<TARGET_PROPERTY:SystemMonitorWarnings,INTERFACE_COMPILE_OPTIONS>)
    target_compile_definitions(${NAME} PRIVATE
        $<TARGET_PROPERTY:SystemMonitorWarnings,INTERFACE_COMPILE_DEFINITIONS>)
    set_target_properties(${NAME} PROPERTIES
        CXX_VISIBILITY_PRESET "${VISIBILITY}"
        VISIBILITY_INLINES_HIDDEN $<STREQUAL:${VISIBILITY},hidden>)
    target_precompile_headers(${NAME} PRIVATE <QtCore> <QtGui/QStandardItemModel>)
endfunction()

# A program includes the .moc files of its sources itself, which leaves moc's own file empty: reading
# the precompiled header for it would take longer than all else.
function(skip_empty_moc_file TARGET)
    get_target_property(TYPE ${TARGET} TYPE)
    get_target_property(DIRECTORY ${TARGET} BINARY_DIR)
    if(TYPE STREQUAL "EXECUTABLE")
        set_source_files_properties("${DIRECTORY}/${TARGET}_autogen/mocs_compilation.cpp"
            TARGET_DIRECTORY ${TARGET}
            PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    endif()
endfunction()

# The headers are compiled with the definitions of our warnings, so only targets with those share
# them.
function(precompile_qt)
    own_targets(TARGETS)
    foreach(TARGET IN LISTS TARGETS)
        target_compile_definitions(${TARGET} PRIVATE QT_CORE_LIB)
        target_include_directories(${TARGET} SYSTEM PRIVATE
            $<TARGET_PROPERTY:Qt6::Gui,INTERFACE_INCLUDE_DIRECTORIES>)
        get_target_property(VISIBILITY ${TARGET} CXX_VISIBILITY_PRESET)
        if(VISIBILITY STREQUAL "hidden")
            target_precompile_headers(${TARGET} REUSE_FROM PrecompiledQtHidden)
        else()
            target_precompile_headers(${TARGET} REUSE_FROM PrecompiledQt)
        endif()
        skip_empty_moc_file(${TARGET})
    endforeach()
endfunction()

if(SYSTEM_MONITOR_PRECOMPILE_QT)
    add_precompiled_qt(PrecompiledQt default)
    add_precompiled_qt(PrecompiledQtHidden hidden)
    cmake_language(DEFER DIRECTORY "${PROJECT_SOURCE_DIR}" CALL precompile_qt)
endif()
