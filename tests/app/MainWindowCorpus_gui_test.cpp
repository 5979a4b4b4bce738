// SPDX-License-Identifier: MIT
// Opens hundreds of hostile and real files one after the other in the same window.
#include "tests/app/FilesTest.h"

#include "tests/graphics/files/Corpus.h"
#include "ui/panels/Mixer.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

namespace
{

using namespace grisal::test;

/// Closes and counts all message boxes that open during its lifetime.
class BoxCloser : public QObject
{
public:
    BoxCloser()
    {
        connect(&m_look, &QTimer::timeout, this, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                ++closed;
                box->accept();
            }
        });
        m_look.start(2);
    }

    int closed = 0;

private:
    QTimer m_look;
};

/// The memory use of the process in megabytes.
long residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    constexpr long pagesPerMegabyte = 256;
    return status.readAll().split(' ').value(1).toLong() / pagesPerMegabyte;
}

/// The allowed variation of the memory use in megabytes. Sanitizers keep freed memory for a while.
#ifdef __SANITIZE_ADDRESS__
constexpr long growth = 1000;
#else
constexpr long growth = 80;
#endif

class MainWindowCorpus : public FilesTest
{
protected:
    void SetUp() override
    {
        FilesTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        if (corpusFolder().isEmpty()) {
            GTEST_SKIP() << "GRISAL_CORPUS, the folder of the pictures, is not set";
        }
        expectWarning(QStringLiteral("No JPEG, PNG or TIFF picture in "));
        for (const char *part : {"Cannot open ", "Magick: ", " contains texts that are too long",
                                 " is too small a file for its ", "Some metadata in "}) {
            allowWarning(QString::fromLatin1(part));
        }
    }

    /// Opens a file; returns whether it was rejected, which only opens a box.
    bool refuses(const QString &path)
    {
        const std::string before = title();
        const int closed = boxes.closed;
        window.openImage(path);
        const bool refused = boxes.closed > closed;
        EXPECT_EQ(title() == before, refused) << path.toStdString();
        return refused;
    }

    BoxCloser boxes;
};

TEST_F(MainWindowCorpus, OpenImageIsKeptAfterEveryHostileFile)
{
    start();
    const QTemporaryDir folder;
    const QStringList files = hostileFiles(folder.path());
    const QString good = makePicture(QStringLiteral("good.png"), 40, 30);
    const QString saved = inHome(QStringLiteral("saved.png"));
    window.openImage(good);
    const std::string goodTitle = title();
    int refused = 0;
    for (const QString &path : files) {
        if (QFileInfo(path).isSymLink() && !QFileInfo::exists(path)) {
            continue; // missing target: the open image is opened again
        }
        if (!refuses(path)) {
            window.openImage(good);
            continue;
        }
        ++refused;
        ASSERT_EQ(title(), goodTitle) << path.toStdString();
        child<QComboBox>(*window.findChild<Mixer *>(), "comboPresets").setCurrentIndex(refused % 17);
        window.saveImage(saved);
        ASSERT_EQ(samplesOf(saved).size(), std::size_t{40} * 30 * 3) << path.toStdString();
        QFile::remove(saved);
    }
    EXPECT_GT(refused, 100);
}

TEST_F(MainWindowCorpus, HundredsOfImagesDoNotIncreaseTheMemoryUse)
{
    constexpr int opens = 300;
    constexpr int settled = 10;
    start();
    const QTemporaryDir folder;
    const QStringList bad = hostileFiles(folder.path());
    const QString small = makePicture(QStringLiteral("small.png"), 600, 400);
    const QString wide = makePicture(QStringLiteral("wide.tif"), 1500, 100, 16);
    long before = 0;
    for (int i = 0; i < opens; ++i) {
        window.openImage(i % 3 == 0 ? small : i % 3 == 1 ? wide : bad[(i * 7) % bad.size()]);
        QCoreApplication::processEvents();
        before = i == settled ? residentMegabytes() : before;
    }
    const long after = residentMegabytes();
    std::cout << "resident after " << settled << " pictures " << before << " MB, after " << opens << " " << after
              << " MB\n";
    EXPECT_LE(after - before, growth);
}

} // namespace
