// SPDX-License-Identifier: MIT
#pragma once

#include "tests/app/WindowTest.h"
#include "tests/graphics/files/PictureFiles.h"
#include "tests/support/Modal.h"

#include <QDir>
#include <QSettings>

#include <string>

namespace grisal::test
{

/// A test of the window with image files in the home directory.
class FilesTest : public WindowTest
{
protected:
    /// Writes an image file in the format of its extension with `depth` bits per channel; returns its path.
    QString makePicture(const QString &name, int width, int height, int depth = 8, const Painter &painter = colourful)
    {
        const QString path = inHome(name);
        painted(width, height, depth, painter).write(path.toStdString());
        return path;
    }

    /// Opens an image with File, Open.
    void openWithDialog(const QString &path)
    {
        const FileDialogAnswer answer(path);
        trigger(window, "actionOpen");
    }

    /// Saves with File, Save As.
    void saveWithDialog(const QString &path)
    {
        const FileDialogAnswer answer(path);
        trigger(window, "actionSave_As");
    }

    std::string title() const { return window.windowTitle().toStdString(); }

    static QStringList storedRecent()
    {
        return QSettings(QStringLiteral("grisal.example"), QStringLiteral("Quillmark"))
            .value(QStringLiteral("recentImages"))
            .toStringList();
    }

    /// Colours that differ between adjacent pixels and between channels and use all 16 bits, but are exact in files of
    /// 8 bits, too.
    static Samples colourful(int x, int y)
    {
        const auto byte = [](int value) { return static_cast<std::uint16_t>((value % 256) * 257); };
        return {byte(x * 7 + y * 3), byte(255 - x * 5 + y * 11 + 1024), byte(x * y + 40)};
    }

    static Samples fine(int x, int y)
    {
        return {static_cast<std::uint16_t>(x * 977 + y * 61), static_cast<std::uint16_t>(65535 - x * 331 - y * 7),
                static_cast<std::uint16_t>(y * 1543 + 5)};
    }
};

} // namespace grisal::test
