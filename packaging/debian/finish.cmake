# SPDX-License-Identifier: MIT
# Run by CPack when the files of the .deb are in its staging folder: applies the rules of the Debian policy.
set(root "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
set(doc "${root}/doc/grisal")

file(COPY_FILE "${CPACK_GRISAL_PACKAGING}/debian/copyright" "${doc}/copyright")
file(COPY_FILE "${CPACK_GRISAL_DEBIAN_CHANGELOG}" "${doc}/changelog.Debian")
file(RENAME "${doc}/CHANGELOG.md" "${doc}/changelog")

set(texts "${root}/man/man1/grisal.1" "${doc}/changelog" "${doc}/changelog.Debian")
execute_process(COMMAND gzip -9 --no-name ${texts} COMMAND_ERROR_IS_FATAL ANY)
list(TRANSFORM texts APPEND ".gz")
file(CHMOD ${texts} "${doc}/copyright" FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

# Fixed permissions, independent of the umask of the build.
file(CHMOD_RECURSE "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr" DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
