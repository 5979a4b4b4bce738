// SPDX-License-Identifier: MIT
#include "graphics/look/LookText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cstring>
#include <random>

namespace grisal::graphics
{

namespace
{

Look parsed(const QByteArray &text)
{
    QString problem;
    const std::optional<Look> look = parseLook(text, problem);
    EXPECT_TRUE(look) << problem.toStdString();
    return look.value_or(Look());
}

QString problemOf(const QByteArray &text)
{
    QString problem;
    EXPECT_FALSE(parseLook(text, problem)) << text.toStdString();
    return problem;
}

float randomIn(std::mt19937 &random, float lowest, float highest)
{
    return std::uniform_real_distribution<float>(lowest, highest)(random);
}

Curve randomCurve(std::mt19937 &random)
{
    Curve curve{{{0.0F}, {randomIn(random, 0, 1)}}, (random() & 1U) != 0 ? CurveKind::Smooth : CurveKind::Straight};
    for (float x = randomIn(random, 0.02F, 0.3F); x < 1; x += randomIn(random, 0.02F, 0.3F)) {
        curve.points.xs << x;
        curve.points.ys << randomIn(random, 0, 1);
    }
    return curve;
}

template <typename Parameters>
void randomise(std::mt19937 &random, Parameters &parameters)
{
    for (const auto &parameter : Parameters::declaration().parameters) {
        for (float &value : parameter.values(parameters)) {
            value = randomIn(random, parameter.lowest, parameter.highest);
        }
    }
}

Look randomLook(std::mt19937 &random)
{
    Look look;
    look.enabled.get<CurveFilter>() = (random() & 1U) != 0;
    look.enabled.get<GrainFilter>() = (random() & 1U) != 0;
    look.enabled.get<HalfToneFilter>() = (random() & 1U) != 0;
    look.enabled.get<VignetteFilter>() = (random() & 1U) != 0;
    randomise(random, look.mixer);
    randomise(random, look.splitTone);
    randomise(random, look.vignette);
    look.grainRadius = randomIn(random, 0, 3);
    look.toneCurve = randomCurve(random);
    look.grainStrength = randomCurve(random);
    return look;
}

} // namespace

TEST(LookTextTest, DefaultLookIsReadable)
{
    const QByteArray text = lookText(Look());

    EXPECT_EQ(text.toStdString(),
              R"({"curve":{"kind":"smooth","on":false,"points":[[0,0],[0.5,0.5],[1,1]]},)"
              R"("grain":{"kind":"straight","on":false,"points":[[0,0],[0.5,0.5],[1,0]],"radius":1.5},)"
              R"("mixer":{"weights":[0.33333334,0.33333334,0.33333334]},)"
              R"("splitTone":{"highlights":[0.74509805,0.6117647,0.21176471],"on":false,)"
              R"("shadows":[0.43137255,0.5803922,0.7764706],"weight":1},)"
              R"("version":1,"vignette":{"on":false,"radius":50,"strength":50,"x":50,"y":50}})");
    EXPECT_EQ(parsed(text), Look());
}

TEST(LookTextTest, IndentedTextHasTheSameLook)
{
    std::mt19937 random(1);
    const Look look = randomLook(random);

    EXPECT_EQ(parsed(lookText(look, LookFormat::Indented)), look);
    EXPECT_GT(lookText(look, LookFormat::Indented).count('\n'), 20);
    EXPECT_EQ(lookText(look).count('\n'), 0);
}

TEST(LookTextTest, RandomLooksAreReadBackExactly)
{
    std::mt19937 random(2);
    for (int i = 0; i < 300; ++i) {
        const Look look = randomLook(random);
        const QByteArray text = lookText(look);
        ASSERT_EQ(parsed(text), look) << text.toStdString();
    }
}

TEST(LookTextTest, EndsOfRangesAreReadBackExactly)
{
    for (const bool lowest : {true, false}) {
        Look look;
        const auto setAll = [=](auto &parameters) {
            for (const auto &parameter : parameters.declaration().parameters) {
                for (float &value : parameter.values(parameters)) {
                    value = lowest ? parameter.lowest : parameter.highest;
                }
            }
        };
        setAll(look.mixer);
        setAll(look.splitTone);
        setAll(look.vignette);
        look.grainRadius = lowest ? 0 : 3;
        EXPECT_EQ(parsed(lookText(look)), look);
    }
}

TEST(LookTextTest, HeightsOfPointsAreReadBackExactly)
{
    std::mt19937 random(3);
    for (const int pixels : {7, 100, 239, 1440}) {
        for (int i = 0; i <= pixels + 2; ++i) {
            Look look;
            look.toneCurve.points.ys[1] = static_cast<float>(static_cast<double>(i) / pixels);
            ASSERT_EQ(parsed(lookText(look)), look) << i << " of " << pixels;
        }
    }
    float y = 1;
    for (int steps = 0; steps < 200; ++steps) {
        y = std::clamp(y + ((random() & 1U) != 0 ? 0.01F : -0.01F), 0.0F, 1.0F);
        Look look;
        look.toneCurve.points.ys[1] = y;
        ASSERT_EQ(parsed(lookText(look)), look) << y;
    }
}

TEST(LookTextTest, PointsAreMeasuredFromTheBottomLeft)
{
    const Look look = parsed(R"({"version": 1, "curve": {"points": [[0, 0.25], [1, 1]]}})");

    EXPECT_EQ(look.toneCurve.points, (CurvePoints{{0, 1}, {0.75F, 0}}));
    EXPECT_FLOAT_EQ(look.toneCurve.sample()[0], 0.25F);
}

TEST(LookTextTest, MissingFiltersAreOff)
{
    EXPECT_EQ(parsed(R"({"version": 1})"), Look());

    Look grainOnly;
    grainOnly.enabled.get<GrainFilter>() = true;
    EXPECT_EQ(parsed(R"({"version": 1, "grain": {}})"), grainOnly);
}

TEST(LookTextTest, SwitchedOffFilterKeepsItsSettings)
{
    const Look look = parsed(R"({"version": 1, "vignette": {"on": false, "strength": 99}})");

    EXPECT_FALSE(look.enabled.get<VignetteFilter>());
    EXPECT_EQ(look.vignette.shape.strength, 99);
    EXPECT_EQ(look.vignette.shape.radius, 50);
}

TEST(LookTextTest, ProblemsNameKeyFoundAndAllowed)
{
    const std::pair<const char *, const char *> cases[] = {
        {R"({})", R"("version" is missing; it is 1)"},
        {R"({"version": 2})", R"("version" is 2; allowed is 1)"},
        {R"({"version": "1"})", R"("version" is "1"; allowed is 1)"},
        {R"({"version": 1, "sharpen": {}})",
         R"("sharpen" is unknown; allowed here are version, mixer, curve, splitTone, grain, vignette)"},
        {R"({"version": 1, "mixer": 5})", R"("mixer" is 5; allowed is an object)"},
        {R"({"version": 1, "mixer": {"weights": [0.3, 0.3]}})",
         R"("mixer.weights" is a list of 2; allowed is a list of 3 numbers)"},
        {R"({"version": 1, "mixer": {"weights": [0.3, 2.5, 0]}})",
         R"("mixer.weights[1]" is 2.5; allowed is a number from -2.0078433 to 2.0078433)"},
        {R"({"version": 1, "mixer": {"on": true}})", R"("mixer.on" is unknown; allowed here are weights)"},
        {R"({"version": 1, "grain": {"radius": 3.1}})", R"("grain.radius" is 3.1; allowed is a number from 0 to 3)"},
        {R"({"version": 1, "grain": {"radius": null}})", R"("grain.radius" is null; allowed is a number from 0 to 3)"},
        {R"({"version": 1, "grain": {"radius": true}})", R"("grain.radius" is true; allowed is a number from 0 to 3)"},
        {R"({"version": 1, "grain": {"radius": {}}})",
         R"("grain.radius" is an object; allowed is a number from 0 to 3)"},
        {R"({"version": 1, "grain": {"on": "yes"}})", R"("grain.on" is "yes"; allowed is true or false)"},
        {R"({"version": 1, "curve": {"kind": "round"}})",
         R"("curve.kind" is "round"; allowed is "smooth" or "straight")"},
        {R"({"version": 1, "curve": {"points": [[0, 0]]}})",
         R"("curve.points" is a list of 1; allowed is a list of 2 to 100)"},
        {R"({"version": 1, "curve": {"points": [[0, 0], [1, 2.5]]}})",
         R"("curve.points[1][1]" is 2.5; allowed is a number from -1 to 2)"},
        {R"({"version": 1, "curve": {"points": [[0, 0], [1.5, 1]]}})",
         R"("curve.points[1][0]" is 1.5; allowed is a number from 0 to 1)"},
        {R"({"version": 1, "curve": {"points": [[0.5, 0], [0.5, 1]]}})",
         R"("curve.points[1][0]" is 0.5; allowed is a number above the one before)"},
        {R"({"version": 1, "curve": {"points": [0, 1]}})", R"("curve.points[0]" is 0; allowed is a list of 2 numbers)"},
        {R"({"version": 1, "vignette": {"x": 99.5}})", R"("vignette.x" is 99.5; allowed is a number from 0 to 99)"},
        {R"({"version": 1, "splitTone": {"weight": [1]}})",
         R"("splitTone.weight" is a list of 1; allowed is a number from 0.75 to 1.25)"},
        {R"([1])", R"(it is a list; a look is an object)"},
    };
    for (const auto &[text, problem] : cases) {
        EXPECT_EQ(problemOf(text).toStdString(), problem) << text;
    }
}

TEST(LookTextTest, TextThatIsNotJsonIsRejected)
{
    for (const QByteArray &text : {QByteArray(), QByteArray("{"), QByteArray("\xff\xd8\xff\xe0"),
                                   QByteArray(R"({"version": 1e999})"), QByteArray(2000, '[')}) {
        EXPECT_TRUE(problemOf(text).startsWith(QStringLiteral("it is not valid JSON: "))) << text.toStdString();
    }
}

TEST(LookTextTest, LongTextsInProblemsAreCutShort)
{
    const QString problem = problemOf(R"({"version": ")" + QByteArray(1000, 'x') + "\"}");

    EXPECT_EQ(problem, QStringLiteral("\"version\" is \"%1...\"; allowed is 1").arg(QString(40, QLatin1Char('x'))));
}

} // namespace grisal::graphics
