// SPDX-License-Identifier: MIT
#include "graphics/filters/FilterSet.h"

namespace grisal::graphics
{

void FilterSet::setSize(int width, int height)
{
    for (IFilter *filter : std::initializer_list<IFilter *>{&mixer, &curve, &vignette, &splitTone, &grain}) {
        filter->width = width;
        filter->height = height;
    }
}

void FilterSet::setPictureSize(int width, int height)
{
    vignette.maxWidth = static_cast<float>(width);
    vignette.maxHeight = static_cast<float>(height);
}

void FilterSet::setParameters(const FilterParameters &parameters)
{
    setMixer(parameters);
    setCurve(parameters);
    setGrainWeights(parameters);
    setVignette(parameters);
    setSplitTone(parameters);
}

void FilterSet::setMixer(const FilterParameters &parameters)
{
    mixer.weights = parameters.mixerWeights;
}

void FilterSet::setCurve(const FilterParameters &parameters)
{
    curve.setCurve(parameters.curve);
}

void FilterSet::setVignette(const FilterParameters &parameters)
{
    vignette.parameters.center = {parameters.vignetteX, parameters.vignetteY, 0};
    vignette.parameters.radius = parameters.vignetteRadius;
    vignette.parameters.strength = parameters.vignetteStrength;
}

void FilterSet::setSplitTone(const FilterParameters &parameters)
{
    splitTone.weight = parameters.splitWeight;
    splitTone.firstColor = parameters.highlightTint;
    splitTone.secondColor = parameters.shadowTint;
}

void FilterSet::setGrainWeights(const FilterParameters &parameters)
{
    grain.setWeights(parameters.grainWeights);
}

} // namespace grisal::graphics
