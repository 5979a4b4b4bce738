// SPDX-License-Identifier: MIT
#include "ui/preview/ZoomFit.h"

namespace grisal::ui
{

namespace
{

constexpr float freeZoomInLimit = 20.0F;
constexpr float stepsPerUnit = 25.0F;
constexpr int deltaPerNotch = 120;

float ratio(int widgetSide, int pictureSide)
{
    return pictureSide > 0 ? static_cast<float>(widgetSide) / static_cast<float>(pictureSide) : 1.0F;
}

} // namespace

FitRatios fitRatios(int widgetWidth, int widgetHeight, int pictureWidth, int pictureHeight)
{
    return {ratio(widgetWidth, pictureWidth), ratio(widgetHeight, pictureHeight)};
}

float zoomedScale(float scale, float step, float fit)
{
    const bool freeZoomIn = step > 0 && scale <= freeZoomInLimit;
    if (!freeZoomIn && scale <= fit * 0.5F) {
        return scale;
    }
    return scale + step / stepsPerUnit;
}

int wheelSteps(int delta)
{
    return delta / deltaPerNotch;
}

} // namespace grisal::ui
