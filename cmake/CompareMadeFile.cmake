# SPDX-License-Identifier: MIT
# Fails unless PROGRAM, given the path MADE, writes there the very bytes of the file KEPT.
execute_process(COMMAND "${PROGRAM}" "${MADE}" COMMAND_ERROR_IS_FATAL ANY)
file(SHA256 "${MADE}" made)
file(SHA256 "${KEPT}" kept)
if(NOT made STREQUAL kept)
  message(FATAL_ERROR "${KEPT} is not what ${PROGRAM} makes")
endif()
