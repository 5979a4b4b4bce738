# SPDX-License-Identifier: MIT
# Options that limit the effect of memory errors in the program that users get; scripts/check-hardening verifies them.
# Debug builds are left out: _FORTIFY_SOURCE works neither without optimisation nor with sanitizers.
include(CheckCXXSourceCompiles)

# Level 3 needs this function; without it the C library uses level 2 and warns.
check_cxx_source_compiles("int main(int, char **texts) { return __builtin_dynamic_object_size(texts[0], 0) == 0; }"
  GRISAL_HAS_DYNAMIC_OBJECT_SIZE)
if(GRISAL_HAS_DYNAMIC_OBJECT_SIZE)
  set(fortify_level 3)
else()
  set(fortify_level 2)
endif()

set(hardening -fPIE -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE
  -D_FORTIFY_SOURCE=${fortify_level})
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
  list(APPEND hardening -fcf-protection)
endif()
add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:${hardening}>")
add_link_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-pie;LINKER:-z,relro,-z,now>")

# Otherwise CMake pads the run path in the build folder with empty elements if that of the installed program is longer,
# and an empty element stands for the current folder. Shared libraries of the build are found by that run path.
if(NOT BUILD_SHARED_LIBS)
  set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
endif()
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)
