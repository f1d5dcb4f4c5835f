# qw_rpm_changelog(DEBIAN_CHANGELOG OUT RELEASE): writes the history of the
# Debian changelog as the entries of an RPM %changelog, newest first:
#   * Sat Nov 21 2026 Acme Printing <printing@acme.example> - 0.1.0-1
#   - First release: ...
#     continued
# One history for both packages: CMake configures again when the Debian
# changelog changes.
function(qw_rpm_changelog debian out release)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${debian})
  file(STRINGS ${debian} lines)
  set(result "")
  set(items "")
  foreach(line IN LISTS lines)
    if(line MATCHES "^[a-z0-9][a-z0-9.+-]* \\(([^)]+)\\)")
      set(version ${CMAKE_MATCH_1})
      set(items "")
    elseif(line MATCHES "^  \\* (.*)$")
      string(APPEND items "- ${CMAKE_MATCH_1}\n")
    elseif(line MATCHES "^    (.*)$")
      string(APPEND items "  ${CMAKE_MATCH_1}\n")
    elseif(line MATCHES "^ -- (.+)  ([A-Z][a-z][a-z]), ([0-9]+) ([A-Z][a-z][a-z]) ([0-9]+) ")
      set(who ${CMAKE_MATCH_1})
      set(date "${CMAKE_MATCH_2} ${CMAKE_MATCH_4} ${CMAKE_MATCH_3} ${CMAKE_MATCH_5}")
      if(NOT version MATCHES "-")
        string(APPEND version "-${release}")
      endif()
      if(result)
        string(APPEND result "\n")
      endif()
      string(APPEND result "* ${date} ${who} - ${version}\n${items}")
    endif()
  endforeach()
  if(NOT result)
    message(FATAL_ERROR "${debian} holds no entry")
  endif()
  file(WRITE ${out} "${result}")
endfunction()
