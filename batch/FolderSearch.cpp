// SPDX-License-Identifier: MIT
#include "batch/FolderSearch.h"

#include "batch/Paths.h"
#include "graphics/files/ImageFile.h"

#include <QFile>

#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace grisal::batch
{

namespace
{

namespace fs = std::filesystem;

fs::path nativePath(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

QString pathIn(const fs::path &path)
{
    return QFile::decodeName(path.c_str());
}

class FolderSearch
{
public:
    FolderSearch(const QString &leftOut, QStringList &warnings) : m_leftOut(nativePath(leftOut)), m_warnings(warnings)
    {
    }

    QStringList imagesIn(const QString &folder)
    {
        m_folders.push_back(nativePath(folder));
        while (!m_folders.empty()) {
            const fs::path next = std::move(m_folders.back());
            m_folders.pop_back();
            read(next);
        }
        m_images.sort();
        return std::move(m_images);
    }

private:
    void read(const fs::path &folder)
    {
        std::error_code error;
        for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
             entry.increment(error)) {
            if (!entry->path().filename().native().starts_with('.')) {
                take(*entry);
            }
        }
        if (error) {
            m_warnings.append(QStringLiteral("Cannot read the folder %1 (%2); pictures in it may be left out.")
                                  .arg(quoted(pathIn(folder)), QString::fromLocal8Bit(error.message().c_str())));
        }
    }

    void take(const fs::directory_entry &entry)
    {
        const QString path = pathIn(entry.path());
        std::error_code error;
        if (nativePath(path) != entry.path()) {
            m_warnings.append(warningOfInvalidName(path));
        } else if (entry.symlink_status(error).type() == fs::file_type::directory) {
            if (!fs::equivalent(entry.path(), m_leftOut, error)) {
                m_folders.push_back(entry.path());
            }
        } else if (graphics::startsLikeImage(path)) {
            m_images.append(path);
        }
    }

    fs::path m_leftOut;
    QStringList &m_warnings;
    std::vector<fs::path> m_folders; ///< still to be read
    QStringList m_images;
};

} // namespace

QStringList findImages(const QString &folder, const QString &leftOut, QStringList &warnings)
{
    return FolderSearch(leftOut, warnings).imagesIn(folder);
}

} // namespace grisal::batch
