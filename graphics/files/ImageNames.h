// SPDX-License-Identifier: MIT
#pragma once

namespace grisal::graphics
{

/// Names of values of GraphicsMagick's enumerations for the log, by their numbers. A number that is not in the table
/// gives the table's undefined text. The texts are static.

/// 1 is RGB, 2 is grey.
const char *colorSpaceName(int colorSpace);

/// 1 to 4.
const char *renderingIntentName(int intent);

/// 1 to 10.
const char *imageTypeName(int type);

} // namespace grisal::graphics
