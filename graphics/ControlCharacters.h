// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace grisal::graphics
{

/// A text in which every control character and every line or paragraph separator is replaced by its escape in C: "\n",
/// "\r", "\t", "\x1b", "\u2028". The name of a file may contain them and would otherwise start new lines in the log or
/// control the terminal that shows it.
QString escapeControlCharacters(const QString &text);

} // namespace grisal::graphics
