# The catalogues of the dashboard's texts, embedded as :/i18n/Dashboard_<language>.qm.
# The target Dashboard_lupdate brings them up to date with the sources. The English one holds plural
# forms alone, because the texts are written in English.
set(DASHBOARD_LUPDATE_OPTIONS -locations none -no-obsolete)
set(DASHBOARD_TEXT_SOURCES ${DASHBOARD_SINGLETONS} ${DASHBOARD_COMPONENTS})
list(TRANSFORM DASHBOARD_TEXT_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")

add_custom_target(Dashboard_lupdate
    COMMAND Qt6::lupdate ${DASHBOARD_LUPDATE_OPTIONS} ${DASHBOARD_TEXT_SOURCES}
        -ts i18n/Dashboard_de.ts
    COMMAND Qt6::lupdate -pluralonly ${DASHBOARD_LUPDATE_OPTIONS} ${DASHBOARD_TEXT_SOURCES}
        -ts i18n/Dashboard_en.ts
    WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
    VERBATIM)

qt_add_lrelease(Dashboard
    TS_FILES i18n/Dashboard_de.ts i18n/Dashboard_en.ts
    QM_FILES_OUTPUT_VARIABLE DASHBOARD_CATALOGUES)
qt_add_resources(Dashboard Dashboard_catalogues
    PREFIX /i18n
    BASE "${CMAKE_CURRENT_BINARY_DIR}"
    FILES ${DASHBOARD_CATALOGUES})
# An installed module lies beside its catalogues, as files.
set(DASHBOARD_CATALOGUES "${DASHBOARD_CATALOGUES}" PARENT_SCOPE)
