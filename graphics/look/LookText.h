// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Look.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace grisal::graphics
{

enum class LookFormat {
    Compact, ///< without line breaks
    Indented
};

/// Returns a look as JSON in UTF-8; docs/look.schema.json describes it. parseLook() returns exactly the same look. The
/// numbers are the shortest ones for which this is true.
QByteArray lookText(const Look &look, LookFormat format = LookFormat::Compact);

/// Returns the look in a text that lookText() or a user has written. Filters that the text does not contain are off;
/// other settings that it does not contain have their defaults. An unknown key, a value out of range and an unknown
/// version are errors: the result is then empty, and `problem` contains a sentence in English with the key, what was
/// found and what is allowed.
std::optional<Look> parseLook(const QByteArray &text, QString &problem);

} // namespace grisal::graphics
