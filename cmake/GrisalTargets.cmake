# SPDX-License-Identifier: MIT
# Settings that all targets of the project share.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(grisal_options INTERFACE)
target_include_directories(grisal_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(grisal_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)

# grisal_add_library(NAME sources...): adds a library of the program, which is static unless BUILD_SHARED_LIBS is set.
# Headers are included by their path from the project root.
function(grisal_add_library name)
  add_library(${name} ${ARGN})
  target_link_libraries(${name} PUBLIC grisal_options)
endfunction()
