# Installs the tree into PREFIX, runs the Workbench there, and builds and runs a project that knows
# nothing but that place.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE RESULT OUTPUT_VARIABLE OUTPUT ERROR_VARIABLE OUTPUT)
    if(NOT RESULT EQUAL 0)
        list(JOIN ARGV " " COMMAND)
        message(FATAL_ERROR "${COMMAND}: ${RESULT}\n${OUTPUT}")
    endif()
endfunction()

file(REMOVE_RECURSE "${PREFIX}" "${CONSUMER_BUILD}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}")
run("${PREFIX}/bin/workbench" --headless --ignore-errors --speed 1000)
run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${CONSUMER_BUILD}" -G Ninja
    "-DCMAKE_PREFIX_PATH=${PREFIX}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
run("${CMAKE_COMMAND}" --build "${CONSUMER_BUILD}")
run("${CONSUMER_BUILD}/consumer" "${PREFIX}/${PLUGIN}" "${PREFIX}/${QML}")
