// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <filesystem>
#include <string>

namespace grisal::graphics
{

/// The template, for QTemporaryFile, of the temporary names of files that are being saved: ".grisal-", 16 hexadecimal
/// digits for the running system and its process namespace, "-", the process id, "-XXXXXX".
std::string temporaryNameTemplate();

/// Removes files with such names from a folder if their process has ended, or if they have not been changed for a day.
/// Only the day counts where the processes cannot be known here: those of other machines, of other containers and from
/// before a restart. Removes only regular files of the same user; ignores failures. `now` is the current time by the
/// clock of the file system, which may be that of another machine.
void removeLeftoverFiles(const std::filesystem::path &folder, std::time_t now);

} // namespace grisal::graphics
