// SPDX-License-Identifier: MIT
#pragma once

#include <qfloat16.h>

#include <cstddef>
#include <cstdint>

namespace grisal::graphics
{

/// Converts 16-bit samples to half floats: sample / 65535, rounded to the nearest, to the even one of two equally near.
/// An OpenGL driver that takes 16-bit samples for a texture of half floats computes the same; Mesa's software driver
/// takes three times as long for it.
void convertToHalfFloats(const std::uint16_t *samples, std::size_t count, qfloat16 *halfFloats);

/// Converts half floats to 16-bit samples: 0..1 becomes 0..65535, rounded to the nearest, to the even one of two
/// equally near; less becomes 0, more 65535, and what is not a number 0. A driver that returns half floats as
/// GL_UNSIGNED_SHORT computes the same; Mesa's software driver takes ten times as long for it.
void convertFromHalfFloats(const qfloat16 *halfFloats, std::size_t count, std::uint16_t *samples);

} // namespace grisal::graphics
