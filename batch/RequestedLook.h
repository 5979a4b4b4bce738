// SPDX-License-Identifier: MIT
#pragma once

#include "batch/Options.h"
#include "graphics/look/Look.h"

#include <QString>

#include <optional>

namespace grisal::batch
{

/// The look of a picture that was saved by Grisal, or of a text file that contains a look as JSON. If there is none,
/// the result is empty and `problem` contains a sentence.
std::optional<graphics::Look> lookOfFile(const QString &path, QString &problem);

/// The look that the options of a conversion name: that of a file, or the mixer with the weights of a film.
std::optional<graphics::Look> requestedLook(const Options &options, QString &problem);

/// The names of the films, one per line.
QString filmNames();

} // namespace grisal::batch
