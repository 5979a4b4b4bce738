// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace grisal::graphics
{

/// Whether the directory of a maker's note has a tag more often than eight times. Exiv2 follows every entry for an
/// inner directory: with hundreds of them, a note of 10 KB expands to gigabytes.
bool repeatsTags(const QByteArray &note);

} // namespace grisal::graphics
