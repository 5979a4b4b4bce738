// SPDX-License-Identifier: MIT
#include "graphics/image/ImageImporter.h"

namespace grisal::graphics
{

void ImageImporter::addReceiver(IImageReceiver *receiver)
{
    m_receivers.push_back(receiver);
}

bool ImageImporter::importImage(ImageBuffer *buffer)
{
    if (!buffer) {
        return false;
    }
    for (IImageReceiver *receiver : m_receivers) {
        if (receiver) {
            receiver->receiveImage(buffer);
        }
    }
    return false;
}

} // namespace grisal::graphics
