// SPDX-License-Identifier: MIT
// Opening an image in the window that needs more memory than is free. Skipped as a whole under the address sanitizer.
#include "tests/app/FilesTest.h"
#include "tests/support/AddressLimit.h"

#include <QLocale>
#include <QtEndian>

namespace
{

using namespace grisal::test;

class MainWindowMemory : public FilesTest
{
protected:
    /// The start of a PNG file that declares a square of pixels.
    QString makeHeader(const QString &name, quint32 side)
    {
        QByteArray size(sizeof side, '\0');
        qToBigEndian(side, size.data());
        writeFile(inHome(name), QByteArray("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16) + size + size +
                                    QByteArray("\x08\2\0\0\0\0\0\0\0", 9));
        return inHome(name);
    }
};

TEST_F(MainWindowMemory, MissingMemoryIsReportedWithFigures)
{
    if (!canLimitAddresses) {
        GTEST_SKIP() << "The sanitizer needs all of the address space";
    }
    start();
    const QString path = makeHeader(QStringLiteral("large.png"), 5000);
    expectWarning(path + QStringLiteral(" needs 818.4 MB of memory to be opened and saved, "));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    MessageBoxAnswer box(QMessageBox::Ok);
    {
        const AddressLimit limit(200'000'000);
        window.openImage(path);
    }
    QLocale::setDefault(before);
    EXPECT_EQ(box.text, QStringLiteral("Cannot load %1.").arg(path));
    EXPECT_TRUE(box.informativeText.startsWith(
        QStringLiteral("Opening and saving it takes up to 818,4 MB of memory, but only 1")))
        << box.informativeText.toStdString();
    EXPECT_EQ(title(), "Lumio Grisal (Alpha)");
}

} // namespace
