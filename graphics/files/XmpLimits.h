// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace grisal::graphics
{

/// Whether Exiv2 decodes and encodes an XMP packet in well under half a second: both take a time that grows with the
/// square of the number of properties of one parent and of name spaces. The packet is counted in one pass.
///
/// Also false for a packet that is not well-formed or has a document type declaration, whose entities could expand to
/// any number of properties.
bool isWithinXmpLimits(const QByteArray &packet);

} // namespace grisal::graphics
