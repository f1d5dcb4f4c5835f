# Run by CPack (CPACK_INSTALL_SCRIPTS): installs the components of the built
# tree, stripped, into CPack's staging root where the Debian package puts
# them. Unlike CPack's own installation of a project, this never builds:
# the tree is packed as it was built.
foreach(part "runtime;${CPACK_QW_DEB_ROOT}" "debian;/")
  list(GET part 0 component)
  list(GET part 1 root)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env DESTDIR=${CPACK_TEMPORARY_INSTALL_DIRECTORY}
      ${CMAKE_COMMAND} --install ${CPACK_QW_BUILD_DIR} --strip
      --component ${component} --prefix ${root}
    OUTPUT_QUIET
    RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "Installing the ${component} component failed")
  endif()
endforeach()
