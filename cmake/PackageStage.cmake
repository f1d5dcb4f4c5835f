# Run by CPack (CPACK_INSTALL_SCRIPTS) for each generator: installs the
# components of the built tree, stripped, into CPack's staging root where the
# package puts them. Unlike CPack's own installation of a project, this never
# builds: the tree is packed as it was built. The "debian" component holds
# what only Debian asks for; an RPM package keeps its history in its header.
# Shared libraries follow each family's rule: not executable on Debian,
# executable where rpm looks for their dependencies (it reads executable
# ELF files only).
set(components runtime system)
set(so_no_exe 0)
if(CPACK_GENERATOR STREQUAL "DEB")
  list(APPEND components debian)
  set(so_no_exe 1)
endif()
foreach(component IN LISTS components)
  set(root /)
  if(component STREQUAL "runtime")
    set(root ${CPACK_QW_ROOT})
  endif()
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env DESTDIR=${CPACK_TEMPORARY_INSTALL_DIRECTORY}
      ${CMAKE_COMMAND} -DCOMPONENT=${component} -DCMAKE_INSTALL_PREFIX=${root}
      -DCMAKE_INSTALL_DO_STRIP=1 -DCMAKE_INSTALL_SO_NO_EXE=${so_no_exe}
      -P ${CPACK_QW_BUILD_DIR}/cmake_install.cmake
    OUTPUT_QUIET
    RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "Installing the ${component} component failed")
  endif()
endforeach()
