# Targets `format`, which formats the C++ files of the tree, and `format-check`, which only says what
# `format` would change. Other versions of clang-format than this differ in details.
find_program(CLANG_FORMAT NAMES clang-format-14 clang-format)

function(add_format_target NAME)
    add_custom_target(${NAME}
        COMMAND sh -c "git ls-files -z --cached --others --exclude-standard '*.cpp' '*.h' | xargs -0 '${CLANG_FORMAT}' \"$@\"" sh ${ARGN}
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        VERBATIM)
endfunction()

if(CLANG_FORMAT)
    add_format_target(format -i)
    add_format_target(format-check --dry-run -Werror)
endif()
