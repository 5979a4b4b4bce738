// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

/// The names under which the log shows values of the image library's enumerations, by their numbers. A number that
/// is not in the table gives the table's undefined text. All texts live as long as the program.

/// 1 is RGB, 2 is grey.
const char *colorSpaceName(int colorSpace);

/// 1 to 4.
const char *renderingIntentName(int intent);

/// 1 to 10.
const char *imageTypeName(int type);

} // namespace grisal::graphics
