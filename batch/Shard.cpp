// SPDX-License-Identifier: MIT
#include "batch/Shard.h"

#include "batch/Paths.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace grisal::batch
{

bool contains(const Shard &shard, const QString &path)
{
    // qHash() differs between versions of Qt and, by default, between processes.
    const QByteArray hash = QCryptographicHash::hash(cleaned(path).toUtf8(), QCryptographicHash::Sha256);
    const auto number = qFromBigEndian<quint64>(hash.constData());
    return number % static_cast<quint64>(shard.count) == static_cast<quint64>(shard.index);
}

} // namespace grisal::batch
