// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace grisal::graphics
{

struct XmpNamespace {
    const char *uri;
    const char *prefix; ///< under which Exiv2 returns its properties
};

// The name spaces that this program knows besides those of Exiv2.

constexpr XmpNamespace lookNamespace{"https://grisal.example/look/1.0/", "grisal"};

/// Photographs and depth maps of mobile phones.
constexpr std::array<XmpNamespace, 2> imageNamespaces{{
    {"http://ns.google.com/photos/1.0/image/", "GImage"},
    {"http://ns.google.com/photos/1.0/depthmap/", "GDepth"},
}};

/// Unregisters the name spaces of all XMP that was decoded, and registers those above. Exiv2 has one name space for
/// each prefix in the whole process, and XMP that is decoded replaces them. To be called before each packet is decoded:
/// properties can be encoded only as long as the name spaces of their own packet are registered. Not thread-safe.
/// Throws std::runtime_error if Exiv2 cannot be initialised.
void resetXmpNamespaces();

} // namespace grisal::graphics
