# The Debian and RPM packages, made by CPack from any configured build tree
# once it is built: `cpack --config BUILD/CPackConfig.cmake` (scripts/package,
# tests/package). Both hold the same files: the "runtime" component becomes
# the package tree in QW_PACKAGE_ROOT, the "system" component lands relative
# to "/": desktop entry, icons, drivers and backend where the system finds
# them, and the licence. The Debian package adds its changelog and lintian
# overrides (the "debian" component); cmake/PackageStage.cmake stages them.
set(CPACK_GENERATOR DEB RPM)
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
# The menu entry names the program's path and the scheduler finds the
# backend and drivers only where they are: nothing moves.
set(CPACK_PACKAGE_RELOCATABLE OFF)
# The components go in stripped, whatever the build type: the packages
# carry no debug symbols.
set(CPACK_INSTALL_CMAKE_PROJECTS "")
set(CPACK_INSTALL_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/PackageStage.cmake)
set(CPACK_QW_BUILD_DIR ${CMAKE_BINARY_DIR})
set(CPACK_QW_ROOT ${QW_PACKAGE_ROOT})

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

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_RELEASE 1)
set(CPACK_RPM_PACKAGE_LICENSE "GPL-2.0-or-later")
set(CPACK_RPM_PACKAGE_GROUP "Hardware/Printing")
set(CPACK_RPM_PACKAGE_URL "https://www.acme.example/printing")
set(CPACK_RPM_PACKAGE_SUMMARY "Add-printer wizard of the Acme printer driver package")
set(CPACK_RPM_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
# rpmbuild finds the libraries actually linked. libmfp is private to the
# package tree: it neither provides nor requires anything outside it. No
# build-id links: the package carries no debug symbols for them to find.
set(CPACK_RPM_PACKAGE_AUTOREQPROV yes)
# The same run-time needs as the Debian package's, by the names Fedora,
# RHEL and openSUSE give them; CPack has no variables for the weak ones and
# the packager.
set(CPACK_RPM_PACKAGE_REQUIRES "cups, cups-client, (qt6-qtsvg or libQt6Svg6)")
string(JOIN "\n" CPACK_RPM_SPEC_MORE_DEFINE
  "%global __provides_exclude_from ^${QW_PACKAGE_ROOT}/"
  "%global __requires_exclude ^libmfp\\\\.so"
  "%global _build_id_links none"
  "Recommends: (avahi-tools or avahi-utils)"
  "Recommends: cups-filters"
  "Packager: ${CPACK_PACKAGE_CONTACT}")
# The system's folders belong to the system's packages; ours are ours.
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
  /opt /usr/lib/cups /usr/lib/cups/backend /usr/share/applications /usr/share/metainfo
  /usr/share/ppd /usr/share/icons /usr/share/icons/hicolor)
foreach(size 16 22 24 32 48 64 128 256 scalable)
  set(dir /usr/share/icons/hicolor/${size}x${size})
  if(size STREQUAL "scalable")
    set(dir /usr/share/icons/hicolor/scalable)
  endif()
  list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION ${dir} ${dir}/apps)
endforeach()
set(CPACK_RPM_USER_FILELIST "%license /usr/share/doc/queuewiz/copyright")
include(cmake/RpmChangelog.cmake)
qw_rpm_changelog(${PROJECT_SOURCE_DIR}/packaging/changelog
  ${PROJECT_BINARY_DIR}/packaging/rpm-changelog ${CPACK_RPM_PACKAGE_RELEASE})
set(CPACK_RPM_CHANGELOG_FILE ${PROJECT_BINARY_DIR}/packaging/rpm-changelog)
include(CPack)

# The packages' documentation: the licence and the history, the latter
# compressed as Debian's policy wants it (-n: no name or time stamp inside).
set(docs ${PROJECT_SOURCE_DIR}/packaging)
set(changelog_gz ${PROJECT_BINARY_DIR}/packaging/changelog.gz)
add_custom_command(OUTPUT ${changelog_gz}
  COMMAND ${CMAKE_COMMAND} -E copy ${docs}/changelog ${PROJECT_BINARY_DIR}/packaging/changelog
  COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/packaging/changelog
  DEPENDS ${docs}/changelog
  COMMENT "Compressing the Debian changelog")
add_custom_target(qw_deb_changelog ALL DEPENDS ${changelog_gz})
install(FILES ${docs}/copyright DESTINATION usr/share/doc/queuewiz
  COMPONENT system EXCLUDE_FROM_ALL)
install(FILES ${changelog_gz} DESTINATION usr/share/doc/queuewiz
  COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES ${docs}/lintian-overrides DESTINATION usr/share/lintian/overrides
  RENAME queuewiz COMPONENT debian EXCLUDE_FROM_ALL)
