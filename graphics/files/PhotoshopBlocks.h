// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace grisal::graphics
{

/// The IPTC records in a sequence of Photoshop's resource blocks; empty if there are none.
QByteArray iptcInPhotoshopBlocks(const QByteArray &blocks);

/// Whether no block with IPTC records is cut short.
bool arePhotoshopBlocksComplete(const QByteArray &blocks);

} // namespace grisal::graphics
