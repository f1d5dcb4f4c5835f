# The hardening that Debian's and Fedora's build flags give every program and
# library they package: stack protector and clash protection, control-flow
# protection, checked string and memory functions, position-independent
# executables, and a read-only relocation table bound at start-up.
#
# The checked functions need optimisation and get in the way of the address
# sanitizer (it intercepts the unchecked ones), so Debug, sanitizer and fuzz
# builds go without them; everything else applies to every build.
option(QW_HARDEN "Build with the distributions' hardening flags" ON)
if(NOT QW_HARDEN)
  return()
endif()

include(CheckCCompilerFlag)
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

# -fcf-protection is for x86; other architectures keep what they support.
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "QW_HAVE${flag}" have)
  check_c_compiler_flag(${flag} ${have}_C)
  check_cxx_compiler_flag(${flag} ${have}_CXX)
  if(${have}_C AND ${have}_CXX)
    add_compile_options(${flag})
  endif()
endforeach()

set(qw_sanitized OFF)
if(QW_FUZZ OR "${CMAKE_C_FLAGS} ${CMAKE_CXX_FLAGS}" MATCHES "-fsanitize=")
  set(qw_sanitized ON)
endif()
if(NOT qw_sanitized)
  # A compiler that fortifies by default (Ubuntu's: level 3) is set back to
  # the level the distributions agree on, without a redefinition warning.
  set(optimised $<NOT:$<CONFIG:Debug>>)
  add_compile_options($<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
endif()

# With policy CMP0083 the executables of POSITION_INDEPENDENT_CODE are linked
# as PIE once the toolchain is known to support it.
check_pie_supported(LANGUAGES C CXX)
add_link_options(LINKER:-z,relro LINKER:-z,now)
