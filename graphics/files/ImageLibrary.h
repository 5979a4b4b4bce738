// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

/// Starts the image library, without its signal handlers, so that abort() and debuggers work as everywhere, and with
/// limits: 65,500 pixels a side, a gigapixel altogether, most of the machine's memory and no files in the place of
/// memory, whatever the environment says. From then on a write beyond a limit of the file size fails instead of ending
/// the process. `programPath` is argv[0] or null. Does its work once per process; every LumioImage makes sure that it
/// was done.
void initializeImageLibrary(const char *programPath);

} // namespace grisal::graphics
