# Lets `all_qmllint`, which reads the modules, also read the QML files that are in none: tests and
# examples. Include it after the modules. Broken.qml is broken on purpose.
add_custom_target(loose-qmllint
    COMMAND sh -c "git ls-files -z --cached --others --exclude-standard '*/tests/*.qml' 'examples/*.qml' ':!*/Broken.qml' | xargs -0 \"$@\"" sh
        $<TARGET_FILE:Qt6::qmllint> -I "${CMAKE_BINARY_DIR}/qml"
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    VERBATIM)
# They import the dashboard.
add_dependencies(loose-qmllint Dashboard)
add_dependencies(all_qmllint loose-qmllint)
