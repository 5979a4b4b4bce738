// SPDX-License-Identifier: MIT
#pragma once

#include <qfloat16.h>

#include <cstddef>
#include <cstdint>

namespace grisal::graphics
{

/// Converts 16-bit samples to half floats: sample / 65535, rounded to nearest, ties to even. OpenGL drivers compute the
/// same when they upload 16-bit samples to a texture of half floats, but Mesa's software driver takes three times as
/// long.
void convertToHalfFloats(const std::uint16_t *samples, std::size_t count, qfloat16 *halfFloats);

/// Converts half floats to 16-bit samples: 0..1 becomes 0..65535, rounded to nearest, ties to even; lower values and
/// NaN become 0, higher values 65535. OpenGL drivers compute the same when they read half floats as GL_UNSIGNED_SHORT,
/// but Mesa's software driver takes ten times as long.
void convertFromHalfFloats(const qfloat16 *halfFloats, std::size_t count, std::uint16_t *samples);

} // namespace grisal::graphics
