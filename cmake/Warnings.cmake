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
