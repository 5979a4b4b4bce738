// SPDX-License-Identifier: MIT
#include "graphics/files/XmpNamespaces.h"

#include <exiv2/exiv2.hpp>

#include <stdexcept>

namespace grisal::graphics
{

// XmpProperties::unregisterNs() would leave those of structures, which only the XMP toolkit within Exiv2 knows.
void resetXmpNamespaces()
{
    Exiv2::XmpParser::terminate();
    if (!Exiv2::XmpParser::initialize()) {
        throw std::runtime_error("XMP cannot be initialised");
    }
    Exiv2::XmpProperties::registerNs(lookNamespace.uri, lookNamespace.prefix);
    for (const XmpNamespace &space : imageNamespaces) {
        Exiv2::XmpProperties::registerNs(space.uri, space.prefix);
    }
}

} // namespace grisal::graphics
