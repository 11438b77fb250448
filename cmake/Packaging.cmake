# Two Debian packages, made by scripts/package: the programs with their documents, and the library with which a host is
# built and runs.

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL planner libtavtermipc)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "impegni dei collaboratori di uno studio, in grafico") # of both
set(CPACK_PACKAGE_CONTACT "The planner authors <planner@localhost.localdomain>")
set(CPACK_PACKAGE_VENDOR "The planner authors")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/lib)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_PLANNER_PACKAGE_NAME planner)
set(CPACK_DEBIAN_PLANNER_PACKAGE_SECTION misc)
# The pictures, the standard buttons' words and the letters: what the programs load while they run.
set(CPACK_DEBIAN_PLANNER_PACKAGE_DEPENDS
    "libtavtermipc (= ${PROJECT_VERSION}-1), libqt6svg6, qt6-translations-l10n, fonts-liberation")
set(CPACK_DEBIAN_PLANNER_DESCRIPTION
    "Mostra gli impegni dei collaboratori di uno studio professionale, per mese,
giorno e anno. Lo avvia il programma dello studio, che gli parla con un
piccolo file; da solo non fa nulla.")

set(CPACK_DEBIAN_LIBTAVTERMIPC_PACKAGE_NAME libtavtermipc)
set(CPACK_DEBIAN_LIBTAVTERMIPC_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBTAVTERMIPC_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/triggers)
set(CPACK_DEBIAN_LIBTAVTERMIPC_DESCRIPTION
    "La libreria con cui il planner e il programma che lo avvia si segnalano
richieste e risposte, con quello che serve a compilare un tale programma.")

string(TIMESTAMP PLANNER_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC) # that of SOURCE_DATE_EPOCH, where there is one

# What every Debian package has, in the form that it wants.
function(planner_debian_documents component)
    set(folder ${CMAKE_BINARY_DIR}/debian/${component})
    set(PACKAGE ${component})
    configure_file(packaging/changelog.in ${folder}/changelog @ONLY)
    add_custom_command(OUTPUT ${folder}/changelog.Debian.gz VERBATIM
        COMMAND gzip -9nc ${folder}/changelog > ${folder}/changelog.Debian.gz DEPENDS ${folder}/changelog)
    add_custom_target(debian-${component} DEPENDS ${folder}/changelog.Debian.gz)
    add_dependencies(debian-documents debian-${component})
    install(FILES ${folder}/changelog.Debian.gz packaging/copyright
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${component} COMPONENT ${component})
    install(FILES packaging/${component}.lintian-overrides RENAME ${component}
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides COMPONENT ${component})
endfunction()

add_custom_target(debian-documents)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/debian/changelog.gz VERBATIM
    COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/CHANGELOG.md > ${CMAKE_BINARY_DIR}/debian/changelog.gz
    DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
add_custom_target(debian-changelog DEPENDS ${CMAKE_BINARY_DIR}/debian/changelog.gz)
add_dependencies(debian-documents debian-changelog)
install(FILES ${CMAKE_BINARY_DIR}/debian/changelog.gz
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/planner COMPONENT planner)
planner_debian_documents(planner)
planner_debian_documents(libtavtermipc)

include(CPack)
