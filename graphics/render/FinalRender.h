// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/image/Image.h"
#include "graphics/look/FilterParameters.h"
#include "graphics/render/TileProgress.h"

namespace grisal::graphics
{

class DocumentView;
class FilterSet;

/// Renders the image in place and at full size, tile by tile, with the enabled filters and the given parameters. 16-bit
/// images are rendered as half floats; alpha stays unchanged.
///
/// The context must be current. Only the projection of `view` is used. Afterwards the filters have the parameters of
/// the call and their previous sizes, and the grain's noise has its radius. Returns false if there is no
/// result; the image is then unchanged.
bool renderFinalImage(Image &image, const FilterParameters &parameters, FilterSet &filters, DocumentView &view,
                      const TileProgress &progress = {});

} // namespace grisal::graphics
