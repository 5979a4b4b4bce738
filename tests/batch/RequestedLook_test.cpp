// SPDX-License-Identifier: MIT
#include "batch/RequestedLook.h"
#include "graphics/files/LumioImage.h"
#include "graphics/look/LookText.h"
#include "tests/graphics/files/PictureFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace grisal::batch
{

namespace
{

using graphics::ColorRGB;
using graphics::Look;

class RequestedLookTest : public testing::Test
{
protected:
    QString path(const char *name) const { return directory.path() + "/" + QString::fromLatin1(name); }

    QString savedPicture(const char *name, const QByteArray &look) const
    {
        graphics::LumioImage image(3, 2, false);
        graphics::Metadata metadata;
        metadata.setLook(look);
        image.setMetadata(metadata);
        EXPECT_TRUE(image.save(path(name), 90));
        return path(name);
    }

    std::optional<Look> fromFile(const QString &file) { return lookOfFile(file, problem); }

    const QTemporaryDir directory;
    QString problem;
};

Look grainyLook()
{
    Look look;
    look.enabled.get<graphics::GrainFilter>() = true;
    look.grainRadius = 2.3F;
    return look;
}

} // namespace

TEST_F(RequestedLookTest, IsReadFromAPicture)
{
    for (const char *name : {"a.jpg", "a.png", "a.tif"}) {
        EXPECT_EQ(fromFile(savedPicture(name, graphics::lookText(grainyLook()))), grainyLook()) << name;
    }
}

TEST_F(RequestedLookTest, IsReadFromJson)
{
    test::writeFile(path("portrait.json"), graphics::lookText(grainyLook(), graphics::LookFormat::Indented));

    EXPECT_EQ(fromFile(path("portrait.json")), grainyLook());
}

TEST_F(RequestedLookTest, ProblemsNameTheFile)
{
    test::writeFile(path("bad.json"), R"({"version": 1, "grain": {"radius": 9}})");

    EXPECT_FALSE(fromFile(path("bad.json")));
    EXPECT_EQ(problem,
              path("bad.json") +
                  QStringLiteral(" has no valid look: \"grain.radius\" is 9; allowed is a number from 0 to 3"));
    EXPECT_FALSE(fromFile(savedPicture("none.png", {})));
    EXPECT_EQ(problem,
              path("none.png") +
                  QStringLiteral(" has no look; pictures that this or a later version of Grisal has saved have one"));
    EXPECT_FALSE(fromFile(savedPicture("other.png", "{}")));
    EXPECT_EQ(problem, path("other.png") + QStringLiteral(" has no valid look: \"version\" is missing; it is 1"));
    EXPECT_FALSE(fromFile(path("missing.jpg")));
    EXPECT_EQ(problem, path("missing.jpg") + QStringLiteral(" cannot be read: No such file or directory"));
}

TEST_F(RequestedLookTest, DamagedPictureIsAProblem)
{
    // 32,768 x 32,768 pixels without any data
    test::writeFile(path("cut.png"), QByteArray("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x80\0\0\0\x80\0\x08\2\0\0\0", 29));

    EXPECT_FALSE(fromFile(path("cut.png")));
    EXPECT_EQ(problem, path("cut.png") + QStringLiteral(" is too small a file for its number of pixels"));
}

TEST_F(RequestedLookTest, IsReadFromNamesThatStartWithAColon)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(directory.path());
    savedPicture(":a.jpg", graphics::lookText(grainyLook()));
    test::writeFile(path(":a.json"), graphics::lookText(grainyLook()));

    EXPECT_EQ(fromFile(":a.jpg"), grainyLook());
    EXPECT_EQ(fromFile(":a.json"), grainyLook()) << problem.toStdString();
    QDir::setCurrent(before);
}

TEST_F(RequestedLookTest, TextAboveOneMebibyteIsAProblem)
{
    QByteArray text = graphics::lookText(grainyLook());
    text += QByteArray((1 << 20) - text.size(), ' ');
    test::writeFile(path("long.json"), text);
    EXPECT_TRUE(fromFile(path("long.json"))) << problem.toStdString();

    test::writeFile(path("long.json"), text + ' ');
    EXPECT_FALSE(fromFile(path("long.json")));
    EXPECT_EQ(problem, path("long.json") + QStringLiteral(" is larger than 1 MiB"));
}

TEST_F(RequestedLookTest, FilmSetsTheWeightsOfTheMixer)
{
    Options options;
    options.film = QStringLiteral("rochester tri-x");

    Look expected;
    expected.mixer.weights = ColorRGB<float>{64 / 255.0F, 89 / 255.0F, 102 / 255.0F};
    EXPECT_EQ(requestedLook(options, problem), expected);
}

TEST_F(RequestedLookTest, UnknownFilmIsAProblem)
{
    Options options;
    options.film = QStringLiteral("Tri-X");

    EXPECT_FALSE(requestedLook(options, problem));
    EXPECT_EQ(problem, QStringLiteral("there is no film \"Tri-X\"; --list-films prints the names"));
}

TEST_F(RequestedLookTest, EveryFilmOfTheListIsAccepted)
{
    const QStringList names = filmNames().split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(names.size(), 17);
    for (const QString &name : names) {
        Options options;
        options.film = name;
        EXPECT_TRUE(requestedLook(options, problem)) << name.toStdString();
    }
}

} // namespace grisal::batch
