// SPDX-License-Identifier: MIT
//
// Any text is a look or is rejected with a reason. A look has usable parameters, and its text gives the same look.
#include "graphics/look/LookText.h"

#include <cstdint>
#include <cstdlib>

using namespace grisal::graphics;

namespace
{

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void requireWithinFrame(const QVector<float> &samples)
{
    for (const float sample : samples) {
        require(sample >= 0 && sample <= 1);
    }
}

void requireSameLook(const Look &look, LookFormat format)
{
    QString problem;
    require(parseLook(lookText(look, format), problem) == look);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QString problem;
    const auto look =
        parseLook(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)), problem);
    if (!look) {
        require(!problem.isEmpty());
        return 0;
    }
    require(problem.isEmpty());
    const FilterParameters parameters = look->parameters();
    requireWithinFrame(parameters.get<CurveFilter>().curve);
    requireWithinFrame(parameters.get<GrainFilter>().weights);
    requireSameLook(*look, LookFormat::Compact);
    requireSameLook(*look, LookFormat::Indented);
    return 0;
}
