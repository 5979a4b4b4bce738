// SPDX-License-Identifier: MIT
#include "batch/OutputNames.h"

#include "batch/Paths.h"
#include "graphics/files/ImageFile.h"

#include <QDir>

namespace grisal::batch
{

namespace
{

QString extensionOfContents(const QString &path)
{
    const graphics::ImageFile file(path);
    return graphics::extensionOf(file.problem().isEmpty() ? file.format() : graphics::ImageFormat::Jpeg);
}

QString patternOrDefault(const QString &pattern, bool besideSource)
{
    if (!pattern.isEmpty()) {
        return pattern;
    }
    return besideSource ? namePlaceholder + graphics::convertedSuffix : QString(namePlaceholder);
}

QString withLastSlash(const QString &folder)
{
    return joined(folder, {});
}

} // namespace

OutputNames::OutputNames(const Options &options)
    : m_hasFolder(!options.outputDir.isEmpty()), m_pattern(options.namePattern)
{
    if (m_hasFolder) {
        m_folder = {withLastSlash(options.outputDir),
                    withLastSlash(absolutePath(options.outputDir, QDir::currentPath()))};
    }
    if (options.format) {
        m_extension = graphics::extensionOf(*options.format);
    }
}

Output OutputNames::outputFor(const Source &source) const
{
    const Folder folder = folderFor(source);
    const QString name = nameFor(source, folder.absolute == folderOf(source.absolute));
    return {folder.path + name, folder.absolute + name};
}

OutputNames::Folder OutputNames::folderFor(const Source &source) const
{
    if (!m_hasFolder) {
        return {folderOf(source.path), folderOf(source.absolute)};
    }
    const QString subfolder = withLastSlash(source.subfolder);
    return {m_folder.path + subfolder, m_folder.absolute + subfolder};
}

QString OutputNames::nameFor(const Source &source, bool besideSource) const
{
    const graphics::NameParts parts = graphics::partsOfName(nameOf(source.absolute));
    QString extension = m_extension.isEmpty() ? parts.extension : m_extension;
    if (extension.isEmpty()) {
        extension = extensionOfContents(source.path);
    }
    const QString pattern = patternOrDefault(m_pattern, besideSource);
    return pattern.split(namePlaceholder).join(parts.base) + u'.' + extension;
}

} // namespace grisal::batch
