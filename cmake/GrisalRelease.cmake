# SPDX-License-Identifier: MIT
# Reads the releases from the headings of CHANGELOG.md, the only definition of their versions and dates, latest first:
#     ## 0.2.0 (2026-11-22)
# Sets GRISAL_RELEASES to these texts without "## ", GRISAL_VERSION and GRISAL_RELEASE_DATE to those of the first.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/CHANGELOG.md")
file(STRINGS CHANGELOG.md GRISAL_RELEASES REGEX "^## ")
list(TRANSFORM GRISAL_RELEASES REPLACE "^## " "")

foreach(release IN LISTS GRISAL_RELEASES)
  if(NOT release MATCHES "^([0-9]+\\.[0-9]+\\.[0-9]+) \\(([0-9]+-[0-9][0-9]-[0-9][0-9])\\)$")
    message(FATAL_ERROR "CHANGELOG.md: the heading \"${release}\" is not a version followed by a date in parentheses")
  endif()
  if(NOT DEFINED GRISAL_VERSION)
    set(GRISAL_VERSION "${CMAKE_MATCH_1}")
    set(GRISAL_RELEASE_DATE "${CMAKE_MATCH_2}")
  endif()
endforeach()
