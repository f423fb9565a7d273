# The catalogues of the dashboard's texts, embedded as :/i18n/Dashboard_<language>.qm.
# The target Dashboard_lupdate brings them up to date with the sources. The English one holds plural
# forms alone, because the texts are written in English.
set(DASHBOARD_QML_FILES ${DASHBOARD_SINGLETONS} ${DASHBOARD_COMPONENTS})

qt_add_lupdate(Dashboard
    TS_FILES i18n/Dashboard_de.ts
    SOURCES ${DASHBOARD_QML_FILES}
    OPTIONS -locations none -no-obsolete)
add_custom_target(Dashboard_lupdate_en
    COMMAND Qt6::lupdate -pluralonly -locations none -no-obsolete ${DASHBOARD_QML_FILES}
        -ts i18n/Dashboard_en.ts
    WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
    VERBATIM)
add_dependencies(Dashboard_lupdate Dashboard_lupdate_en)

qt_add_lrelease(Dashboard
    TS_FILES i18n/Dashboard_de.ts i18n/Dashboard_en.ts
    QM_FILES_OUTPUT_VARIABLE DASHBOARD_CATALOGUES)
qt_add_resources(Dashboard Dashboard_catalogues
    PREFIX /i18n
    BASE "${CMAKE_CURRENT_BINARY_DIR}"
    FILES ${DASHBOARD_CATALOGUES})
