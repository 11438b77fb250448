# What is installed besides programs and library: manual pages, made from each program's own --help, the documents and
# the licence.

set(PLANNER_DOCUMENTS ${CMAKE_INSTALL_DATAROOTDIR}/doc)

install(FILES docs/guida.md docs/host-integration.md
    DESTINATION ${PLANNER_DOCUMENTS}/planner COMPONENT planner)
install(DIRECTORY docs/hosts DESTINATION ${PLANNER_DOCUMENTS}/planner COMPONENT planner)
if(NOT PLANNER_PACKAGE) # which says them in its own form
    install(FILES LICENSE CHANGELOG.md DESTINATION ${PLANNER_DOCUMENTS}/planner COMPONENT planner)
endif()

find_program(HELP2MAN help2man)
if(NOT HELP2MAN OR NOT PLANNER_QT OR PLANNER_SANITIZERS)
    return()
endif()

# The page of one program: its name, and what it is in a few words.
function(planner_manual program summary)
    set(page ${CMAKE_BINARY_DIR}/man/${program}.1)
    add_custom_command(OUTPUT ${page}.gz VERBATIM
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
        COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8
            ${HELP2MAN} --no-info --name=${summary} --version-string=${PROJECT_VERSION}
            "--manual=Planner grafico" "--source=planner ${PROJECT_VERSION}" --output=${page} $<TARGET_FILE:${program}>
        # The words around the help are English.
        COMMAND sed -i -e "s/^\\.SH NAME/.SH NOME/" -e "s/^\\.SH DESCRIPTION/.SH DESCRIZIONE/" ${page}
        COMMAND gzip -9nf ${page}
        DEPENDS ${program})
    install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT planner OPTIONAL)
    set_property(GLOBAL APPEND PROPERTY PLANNER_MANUALS ${page}.gz)
endfunction()

planner_manual(planner "planner grafico degli impegni")
planner_manual(planner-host "host di prova per il planner")
planner_manual(planner-dump "descrive come testo quello che il planner mostrerebbe")
planner_manual(planner-print "stampa senza schermo quello che il planner mostrerebbe")
get_property(pages GLOBAL PROPERTY PLANNER_MANUALS)
add_custom_target(manuals DEPENDS ${pages})
