// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <exiv2/exiv2.hpp>

#include <string>
#include <utility>

namespace grisal::graphics
{

inline const Exiv2::byte *exivBytes(const QByteArray &bytes)
{
    return reinterpret_cast<const Exiv2::byte *>(bytes.constData());
}

/// Removes data from Exif, IPTC or XMP in linear time: the data that stay are copied, since IPTC and XMP are vectors,
/// whose erase() moves everything behind.
template <typename Data, typename Predicate>
void eraseIf(Data &data, Predicate predicate)
{
    Data kept;
    for (const auto &datum : data) {
        if (!predicate(datum)) {
            kept.add(datum);
        }
    }
    data = std::move(kept);
}

/// The key of the XMP property that a key is part of: without the items of arrays and the fields of structures.
inline std::string propertyOf(const std::string &key)
{
    return key.substr(0, key.find_first_of("[/"));
}

} // namespace grisal::graphics
