# SPDX-License-Identifier: MIT
# What every target of the project has in common.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The libraries end up in a module, too.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(grisal_options INTERFACE)
target_include_directories(grisal_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(grisal_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)

# grisal_add_library(NAME sources...): one of the program's libraries, headers included by their path from the root.
function(grisal_add_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC grisal_options)
endfunction()

set(GRISAL_INSTALL_MODULEDIR "${CMAKE_INSTALL_LIBDIR}/grisal")

# grisal_loads_pictures(NAME): a program that loads the module for image files, from where it is built or from where it is
# installed.
function(grisal_loads_pictures name)
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}" OUTPUT_VARIABLE libraries)
  add_dependencies(${name} grisal_pictures)
  set_target_properties(${name} PROPERTIES
    BUILD_RPATH "$<TARGET_FILE_DIR:grisal_pictures>"
    INSTALL_RPATH "$ORIGIN/${libraries}/grisal")
  # The kind of run path that counts whoever calls dlopen(): a sanitizer puts a function of its own before it.
  target_link_options(${name} PRIVATE LINKER:--disable-new-dtags)
endfunction()
