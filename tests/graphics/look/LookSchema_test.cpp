// SPDX-License-Identifier: MIT
// The published schema must describe what the program writes and accepts.
#include "graphics/look/LookText.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace grisal::graphics
{

namespace
{

class LookSchemaTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QFile file(QStringLiteral(GRISAL_LOOK_SCHEMA));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        schema = QJsonDocument::fromJson(file.readAll()).object();
        ASSERT_FALSE(schema.isEmpty());
    }

    /// The part of the schema for a key, with the definition that it refers to.
    QJsonObject withDefinition(QJsonObject part) const
    {
        const QString name = part.take(QStringLiteral("$ref")).toString().section(QLatin1Char('/'), -1);
        QJsonObject whole = schema[QStringLiteral("$defs")][name].toObject();
        for (auto entry = part.begin(); entry != part.end(); ++entry) {
            whole[entry.key()] = entry.value();
        }
        return whole;
    }

    QJsonObject properties(const QString &section) const
    {
        return schema[QStringLiteral("properties")][section][QStringLiteral("properties")].toObject();
    }

    template <typename Parameters>
    void expectRanges(const QString &section, const QStringList &names) const
    {
        for (const auto &parameter : Parameters::declaration().parameters) {
            const QString name = QString::fromLatin1(parameter.name);
            if (!names.contains(name)) {
                continue;
            }
            QJsonObject part = withDefinition(properties(section)[name].toObject());
            if (part.contains(QStringLiteral("items"))) {
                part = part[QStringLiteral("items")].toObject();
            }
            EXPECT_EQ(static_cast<float>(part[QStringLiteral("minimum")].toDouble(-99)), parameter.lowest)
                << name.toStdString();
            EXPECT_EQ(static_cast<float>(part[QStringLiteral("maximum")].toDouble(-99)), parameter.highest)
                << name.toStdString();
        }
    }

    QJsonObject schema;
};

} // namespace

TEST_F(LookSchemaTest, HasTheKeysAndDefaultsOfAWrittenLook)
{
    const QJsonObject written = QJsonDocument::fromJson(lookText(Look())).object();

    EXPECT_EQ(schema[QStringLiteral("properties")].toObject().keys(), written.keys());
    EXPECT_EQ(schema[QStringLiteral("properties")][QStringLiteral("version")][QStringLiteral("const")],
              written[QStringLiteral("version")]);
    for (const QString &section : written.keys()) {
        const QJsonObject settings = written[section].toObject();
        EXPECT_EQ(properties(section).keys(), settings.keys()) << section.toStdString();
        for (const QString &key : settings.keys()) {
            if (key != QStringLiteral("on")) {
                const QJsonObject part = withDefinition(properties(section)[key].toObject());
                EXPECT_EQ(part[QStringLiteral("default")], settings[key]) << (section + '.' + key).toStdString();
            }
        }
    }
}

TEST_F(LookSchemaTest, RangesAreThoseOfTheFilters)
{
    expectRanges<MixerFilterParameters>(QStringLiteral("mixer"), {QStringLiteral("weights")});
    expectRanges<HalfToneFilterParameters>(
        QStringLiteral("splitTone"),
        {QStringLiteral("weight"), QStringLiteral("highlights"), QStringLiteral("shadows")});
    expectRanges<GrainFilterParameters>(QStringLiteral("grain"), {QStringLiteral("radius")});
    expectRanges<VignetteFilterParameters>(
        QStringLiteral("vignette"),
        {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("radius"), QStringLiteral("strength")});
}

} // namespace grisal::graphics
