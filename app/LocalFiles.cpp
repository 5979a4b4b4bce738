// SPDX-License-Identifier: MIT
#include "app/LocalFiles.h"

#include "app/Session.h"

#include <algorithm>
#include <climits>
#include <filesystem>
#include <iterator>
#include <system_error>

namespace grisal
{

namespace
{

/// Empty if the URL does not name a file on this computer.
QString localFile(const QUrl &url)
{
    if (!url.isLocalFile() || !(url.host().isEmpty() || url.host() == QLatin1String("localhost"))) {
        return {};
    }
    // QUrl::toLocalFile() would replace what is not UTF-8 and end at a null character: the path of another file.
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    QString path = QString::fromUtf8(bytes);
    const bool isPath = path.startsWith(u'/') && !path.contains(QChar::Null) && bytes.size() < PATH_MAX;
    return isPath && path.toUtf8() == bytes ? path : QString();
}

} // namespace

QStringList localFiles(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        if (const QString path = localFile(url); !path.isEmpty()) {
            paths << path;
        }
    }
    return paths;
}

bool isMissing(const QString &path)
{
    std::error_code problem;
    return !std::filesystem::exists(path.toStdString(), problem) && !problem;
}

QStringList imagesAmong(const QStringList &paths)
{
    QStringList images;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(images), Session::startsLikeImage);
    return images;
}

} // namespace grisal
