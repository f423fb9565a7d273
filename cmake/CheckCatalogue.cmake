# Fails unless a catalogue holds every text of the sources, each of them translated.
# Needs LUPDATE, CATALOGUE, SOURCES (a list), COPY (a scratch file), OPTIONS (a list) and TARGET, which
# brings the catalogue up to date.
file(READ "${CATALOGUE}" before)
file(WRITE "${COPY}" "${before}")
execute_process(
    COMMAND "${LUPDATE}" ${OPTIONS} ${SOURCES} -ts "${COPY}"
    OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
file(READ "${COPY}" after)
if(NOT before STREQUAL after)
    message(FATAL_ERROR "${CATALOGUE} is not up to date; build the target ${TARGET}")
endif()
if(after MATCHES "type=\"(unfinished|vanished|obsolete)\"")
    message(FATAL_ERROR "${CATALOGUE} has texts without a translation")
endif()
