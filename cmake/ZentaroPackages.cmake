# The Debian packages: zentaro-print for the till, zentaro-tools for the people who set it up, there
# or on a desk, zentaro-desktop for what draws, zentaro-cups for the print scheduler's queues.
# `cpack -G DEB` in a build folder writes them.

set(ZENTARO_MAINTAINER "The zentaro maintainers <maintainers@zentaro.example>" CACHE STRING
    "Name and address that the packages tell")
configure_file(cmake/changelog.Debian.in changelog.Debian @ONLY)
set(CPACK_COMPONENTS_ALL print tools desktop cups)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(documents "${CMAKE_INSTALL_DATADIR}/doc/zentaro-${component}")
    install(FILES LICENSE DESTINATION "${documents}" RENAME copyright COMPONENT ${component})
    install(FILES CHANGELOG.md DESTINATION "${documents}" RENAME changelog COMPONENT ${component})
    install(FILES "${CMAKE_BINARY_DIR}/changelog.Debian" DESTINATION "${documents}"
            COMPONENT ${component})
endforeach()
install(FILES SECURITY.md DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/zentaro-print" COMPONENT print)
install(FILES doc/queues.md DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/zentaro-cups/doc"
        COMPONENT cups)
install(FILES cmake/zentaro-desktop.lintian
        DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" RENAME zentaro-desktop
        COMPONENT desktop)
# The pages point at each other as they do in the source tree.
install(FILES doc/faults.md
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/zentaro-print/doc" COMPONENT print)
install(DIRECTORY samples DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/zentaro-print"
        COMPONENT print)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "${ZENTARO_MAINTAINER}")
set(CPACK_PACKAGE_VERSION "${ZENTARO_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package's own is the first line of its description
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/CompressForDebian.cmake")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0.1) # none of the distribution's own
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE zentaro)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)

# Any two packages of the project's version fit: one that is upgraded alone takes no other away.
set(same_version "(>= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_PRINT_PACKAGE_NAME zentaro-print)
set(CPACK_COMPONENT_PRINT_DESCRIPTION
    "print-document compiler of a point-of-sale suite
Turns the XML print requests of a restaurant or shop till (tickets, receipts,
invoices, fiscal receipts, reports) into the command text of a receipt printer.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME zentaro-tools)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "checks, previews and configures the printed documents of a point-of-sale suite
The companion tools of zentaro-print: they check and preview print requests,
and read, check, convert and change the configuration of the suite.")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "xml-core, zentaro-print ${same_version}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS zentaro-desktop)
foreach(script postinst prerm postrm)
    list(APPEND CPACK_DEBIAN_TOOLS_PACKAGE_CONTROL_EXTRA
         "${PROJECT_SOURCE_DIR}/tools/debian/${script}")
endforeach()

set(CPACK_DEBIAN_DESKTOP_PACKAGE_NAME zentaro-desktop)
set(CPACK_COMPONENT_DESKTOP_DESCRIPTION
    "pictures and the configuration window of a point-of-sale suite
What zentaro-tools needs to draw pictures of printed documents, and to edit the
configuration in a window.")
set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS "zentaro-tools ${same_version}")
# The pictures of a preview are drawn with the font; the window's buttons are in the translations.
set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-translations-l10n")

set(CPACK_DEBIAN_CUPS_PACKAGE_NAME zentaro-cups)
set(CPACK_COMPONENT_CUPS_DESCRIPTION
    "print queues of receipt printers for a point-of-sale suite
Lets the print scheduler take the print requests of a restaurant or shop till,
keep them while a printer is off, and share its printers between machines.")
set(CPACK_DEBIAN_CUPS_PACKAGE_DEPENDS "cups, zentaro-print ${same_version}")
set(CPACK_DEBIAN_CUPS_PACKAGE_SUGGESTS zentaro-tools)
set(CPACK_DEBIAN_CUPS_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cups/debian/postinst"
                                            "${PROJECT_SOURCE_DIR}/cups/debian/postrm")

include(CPack)
