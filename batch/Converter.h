// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Options.h"
#include "batch/Outcome.h"
#include "batch/OutputPlan.h"
#include "graphics/cpu/CpuRenderer.h"
#include "graphics/look/Look.h"

#include <QByteArray>

#include <cstdint>

namespace grisal::batch
{

/// Converts pictures one by one with the same look, on the calling thread. Opening and saving follow the same rules as
/// in the window: what is accepted, orientation, metadata, depth, atomic replacement.
class Converter
{
public:
    Converter(const graphics::Look &look, const Options &options);

    /// Reads a picture, renders it, makes the folder of its output and saves it there with its look, unless the options
    /// leave it out because the output exists. Does not throw.
    Outcome convert(const Job &job) const;

private:
    Outcome convertExisting(const Job &job) const;
    Outcome convertPicture(const Job &job) const;
    bool isUpToDate(const Job &job) const;

    graphics::Look m_look;
    QByteArray m_lookText;
    graphics::CpuRenderer m_renderer;
    int m_quality;
    IfExists m_ifExists;
};

/// The most memory that convert() takes for a picture, in bytes; 0 if it cannot be opened. Reads its header only, with
/// our own code.
std::uint64_t memoryToConvert(const QString &source);

} // namespace grisal::batch
