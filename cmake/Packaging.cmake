# The Debian package, made by CPack from any configured build tree once it
# is built: `cpack --config BUILD/CPackConfig.cmake` (scripts/package,
# tests/package). The "runtime" component becomes the package tree in
# QW_DEB_ROOT, the "debian" component lands relative to "/": desktop entry,
# icons, drivers and backend where the system finds them, and the files
# Debian asks of every package (cmake/DebStage.cmake).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME queuewiz)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Acme Printing")
set(CPACK_PACKAGE_CONTACT "Acme Printing <printing@acme.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "add-printer wizard of the Acme printer driver package")
# Lines of the extended description stay within 80 columns.
string(JOIN "\n" CPACK_PACKAGE_DESCRIPTION
  "This wizard sets up printers of the Acme driver package: a local USB or"
  "parallel printer, a network printer found by discovery, or a port chosen"
  "by hand. It creates the CUPS queue, sets the paper size of the user's"
  "country, makes the printer the default and prints a test page.")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
# The components go in stripped, whatever the build type: the package
# carries no debug symbols.
set(CPACK_INSTALL_CMAKE_PROJECTS "")
set(CPACK_INSTALL_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebStage.cmake)
set(CPACK_QW_BUILD_DIR ${CMAKE_BINARY_DIR})
set(CPACK_QW_DEB_ROOT ${QW_DEB_ROOT})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Libraries actually linked are found by dpkg-shlibdeps; libmfp is our own.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/mfp)
# What is run or loaded rather than linked: the scheduler and lpadmin, the
# SVG image plug-in the forms need.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "cups-daemon, cups-client, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "avahi-utils, cups-filters, qt6-translations-l10n")
include(CPack)

# Debian's documentation of the package: the licence and the history, the
# latter compressed as policy wants it (-n: no name or time stamp inside).
set(docs ${PROJECT_SOURCE_DIR}/packaging)
set(changelog_gz ${PROJECT_BINARY_DIR}/packaging/changelog.gz)
add_custom_command(OUTPUT ${changelog_gz}
  COMMAND ${CMAKE_COMMAND} -E copy ${docs}/changelog ${PROJECT_BINARY_DIR}/packaging/changelog
  COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/packaging/changelog
  DEPENDS ${docs}/changelog
  COMMENT "Compressing the Debian changelog")
add_custom_target(qw_deb_changelog ALL DEPENDS ${changelog_gz})
install(FILES ${docs}/copyright ${changelog_gz} DESTINATION usr/share/doc/queuewiz
  COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${docs}/lintian-overrides DESTINATION usr/share/lintian/overrides
  RENAME queuewiz COMPONENT debian EXCLUDE_FROM_ALL)
