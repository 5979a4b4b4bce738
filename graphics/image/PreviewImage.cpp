// SPDX-License-Identifier: MIT
#include "graphics/image/PreviewImage.h"

#include "graphics/image/Downscale.h"
#include "graphics/image/ImageBuffer.h"
#include "graphics/image/ImageImporter.h"

#include <algorithm>

namespace grisal::graphics
{

namespace
{

int downscalingsFor(int width, int height)
{
    int times = 0;
    for (int side = std::max(width, height); side > maxPreviewSide; side /= 2) {
        ++times;
    }
    return times;
}

/// Creates the preview of an imported buffer with samples of the given type.
template <typename Sample>
class PreviewReceiver final : public IImageReceiver
{
public:
    explicit PreviewReceiver(int components) : m_components(components) {}

    void receiveImage(ImageBuffer *buffer) override
    {
        const int width = roundedPreviewSide(static_cast<int>(buffer->width));
        const int height = roundedPreviewSide(static_cast<int>(buffer->height));
        const PixelRows<Sample> rows{static_cast<const Sample *>(buffer->pixels),
                                     std::size_t{buffer->width} * static_cast<std::size_t>(m_components), m_components};
        preview = downscale(rows, width, height, downscalingsFor(width, height));
    }

    Raster<Sample> preview;

private:
    int m_components;
};

template <typename Sample>
Raster<Sample> previewOf(const Raster<Sample> &image)
{
    if (image.samples.empty()) {
        return {};
    }
    // The importer passes the buffer to receivers that only read it.
    ImageBuffer buffer{const_cast<Sample *>(image.samples.data()), static_cast<std::uint32_t>(image.width),
                       static_cast<std::uint32_t>(image.height), 1, 1};
    PreviewReceiver<Sample> receiver(image.components);
    ImageImporter importer;
    importer.addReceiver(&receiver);
    importer.importImage(&buffer);
    return std::move(receiver.preview);
}

} // namespace

int roundedPreviewSide(int side)
{
    return side < 4 ? side : side - side % 4;
}

int previewDownscaling(int width, int height)
{
    return 1 << downscalingsFor(roundedPreviewSide(width), roundedPreviewSide(height));
}

Image makePreview(const Image &image)
{
    return std::visit([](const auto &raster) { return Image(previewOf(raster)); }, image);
}

} // namespace grisal::graphics
