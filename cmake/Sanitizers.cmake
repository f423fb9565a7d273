# A comma-separated list for -fsanitize=, applied to every target below this directory.
set(SYSTEM_MONITOR_SANITIZERS "" CACHE STRING "Sanitizers to build with, e.g. address,undefined")

if(SYSTEM_MONITOR_SANITIZERS)
    add_compile_options(-fsanitize=${SYSTEM_MONITOR_SANITIZERS} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${SYSTEM_MONITOR_SANITIZERS})
endif()
