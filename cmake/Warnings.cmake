# The interface target that every C++ target of ours links privately.
# CMAKE_COMPILE_WARNING_AS_ERROR, set by the presets, turns its findings into errors.
add_library(SystemMonitorWarnings INTERFACE)
target_compile_options(SystemMonitorWarnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Woverloaded-virtual -Wnon-virtual-dtor -Wsuggest-override -Wimplicit-fallthrough
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>)
target_compile_definitions(SystemMonitorWarnings INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# own_targets(<out>)
# Lists every target that has these warnings, once all directories are read (cmake_language(DEFER)).
# The others hold nothing but generated code.
function(own_targets OUT)
    set(DIRECTORIES "${PROJECT_SOURCE_DIR}")
    set(FOUND "")
    while(DIRECTORIES)
        list(POP_FRONT DIRECTORIES DIRECTORY)
        get_property(SUBDIRECTORIES DIRECTORY "${DIRECTORY}" PROPERTY SUBDIRECTORIES)
        list(APPEND DIRECTORIES ${SUBDIRECTORIES})
        get_property(TARGETS DIRECTORY "${DIRECTORY}" PROPERTY BUILDSYSTEM_TARGETS)
        foreach(TARGET IN LISTS TARGETS)
            get_target_property(LIBRARIES ${TARGET} LINK_LIBRARIES)
            if("SystemMonitorWarnings" IN_LIST LIBRARIES)
                list(APPEND FOUND ${TARGET})
            endif()
        endforeach()
    endwhile()
    set(${OUT} "${FOUND}" PARENT_SCOPE)
endfunction()
