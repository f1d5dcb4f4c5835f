# `cpack -G DEB` in a build configured with -DQW_DEB_LAYOUT=ON (see
# scripts/package): every install destination is then relative to "/".
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME queuewiz)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Acme Printing")
set(CPACK_PACKAGE_CONTACT "Acme Printing <printing@acme.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "add-printer wizard of the Acme printer driver package")
set(CPACK_PACKAGE_DESCRIPTION
    "queuewiz sets up printers of the Acme driver package: a local USB or parallel printer, a network printer found by discovery, or a port chosen by hand. It creates the CUPS queue, sets the paper size of the user's country, makes the printer the default and prints a test page.")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Libraries actually linked are found by dpkg-shlibdeps; libmfp is our own.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/mfp)
# What is run or loaded rather than linked: the scheduler and lpadmin, the
# SVG image plug-in the forms need.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "cups-daemon, cups-client, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "avahi-utils, cups-filters")
include(CPack)
