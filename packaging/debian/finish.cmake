# SPDX-License-Identifier: MIT
# Run by CPack when the files of the .debs are in their staging folders: applies the rules of the Debian policy.
function(finish component program)
  set(staging "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr")
  set(doc "${staging}/share/doc/${program}")

  file(MAKE_DIRECTORY "${doc}")
  foreach(text changelog changelog.Debian copyright)
    file(COPY_FILE "${CPACK_GRISAL_TEXTS}/${text}" "${doc}/${text}")
  endforeach()

  set(texts "${staging}/share/man/man1/${program}.1" "${doc}/changelog" "${doc}/changelog.Debian")
  execute_process(COMMAND gzip -9 --no-name ${texts} COMMAND_ERROR_IS_FATAL ANY)
  # CPack's own stripping keeps these sections.
  execute_process(COMMAND strip --remove-section=.comment --remove-section=.note "${staging}/bin/${program}"
    COMMAND_ERROR_IS_FATAL ANY)

  # Fixed permissions, independent of those of the sources and of the umask of the build.
  list(TRANSFORM texts APPEND ".gz")
  file(GLOB overrides "${staging}/share/lintian/overrides/*")
  file(CHMOD ${texts} ${overrides} "${doc}/copyright" FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  file(CHMOD_RECURSE "${staging}" DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endfunction()

# CPack installs into the staging folder, whose path is then in the file for D-Bus.
function(finish_service)
  set(staging "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/window")
  file(GLOB service "${staging}/usr/share/dbus-1/services/*.service")
  file(READ "${service}" text)
  string(REPLACE "${staging}" "" text "${text}")
  file(WRITE "${service}" "${text}")
endfunction()

function(finish_overrides)
  set(folder "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/window/usr/share/lintian/overrides")
  file(MAKE_DIRECTORY "${folder}")
  file(COPY_FILE "${CPACK_GRISAL_TEXTS}/lintian-overrides" "${folder}/grisal")
endfunction()

finish_service()
finish_overrides()
finish(window grisal)
finish(batch grisal-batch)
