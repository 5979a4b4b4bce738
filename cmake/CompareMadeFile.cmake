# SPDX-License-Identifier: MIT
# Runs PROGRAM with the path MADE as its argument, and fails unless the file that it writes there is identical to the
# file KEPT.
execute_process(COMMAND "${PROGRAM}" "${MADE}" COMMAND_ERROR_IS_FATAL ANY)
file(SHA256 "${MADE}" made)
file(SHA256 "${KEPT}" kept)
if(NOT made STREQUAL kept)
  message(FATAL_ERROR "${KEPT} is not what ${PROGRAM} makes")
endif()
