// SPDX-License-Identifier: MIT
//
// Saved images depend on every token of the shaders: the same settings have to give the same result in every version
// of the program. Only comments and layout may change.
#include "graphics/shader/ShaderProgram.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QRegularExpression>

#include <ostream>
#include <string>

namespace grisal::test
{

namespace
{

struct Source {
    const char *file;
    const char *checksum; ///< SHA-256 of its tokens

    friend void PrintTo(const Source &source, std::ostream *stream) { *stream << source.file; }
};

constexpr Source sources[] = {
    {"CurveFilter.frag", "4cac585358c32a5fe617cb3cb3944b2b070381eb8c60530fa0cc155bbc7dba45"},
    {"FinalVignetteFilter.frag", "4abbc74f83e54b7e4323c272171934d0ef18d5cc11005a22889fc4416c427e98"},
    {"GrainFilter.frag", "a70b57c5e52d0ebf7fdead72b245f6dac4909621a70ba596a91a0bf3731f89d8"},
    {"HalfToneFilter.frag", "f0861774e5858314d1c1392855c13839edfa40da9cc51e7d1857cf0860e62b4c"},
    {"HorizontalBlurFilter.frag", "a0e7ee852db9758076d7fa0ed74c0beb03d10c3b588cdb09534147fedacdf71e"},
    {"MixerFilter.frag", "515ac6669c84dd6fc7efb49e4b520269d884a6e2b65dc0d9b913942bd69d964b"},
    {"OverlayFilter.frag", "bd62ac6ab500d6d15271ce89a7729224f1c621e4f367059469f9f7f88a3bbd08"},
    {"Shared.vert", "f640f1cbe0b7ee120886a41f60fb5161cb0b93af564cbbf001eb04aba21f8412"},
    {"VerticalBlurFilter.frag", "992d057d459f0bdde7221b82d2376200b6f1cf0fc90d533a02e2a8f797e95115"},
    {"VignetteFilter.frag", "894a7c6bb33f388552ee36374a89c106be85e6b10227bdf8ac14455e79e12870"},
};

/// Names, numbers, operators and other tokens, one per line, without comments.
QByteArray tokensOf(QString source)
{
    static const QRegularExpression comment(QStringLiteral("//[^\\n]*|/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression token(
        QStringLiteral("[A-Za-z_]\\w*|\\d+\\.?\\d*|\\.\\d+|[-+*/<>=!]=|&&|\\|\\||\\+\\+|--|\\S"));
    source.replace(comment, QStringLiteral(" "));
    QByteArray tokens;
    QRegularExpressionMatchIterator matches = token.globalMatch(source);
    while (matches.hasNext()) {
        tokens += matches.next().captured().toUtf8() + '\n';
    }
    return tokens;
}

QString checksumOf(const QString &source)
{
    return QString::fromLatin1(QCryptographicHash::hash(tokensOf(source), QCryptographicHash::Sha256).toHex());
}

/// The source as passed to the GLSL compiler, including the version line.
QString compiledSource(const QString &file)
{
    const QString stem = file.section(QLatin1Char('.'), 0, 0);
    const bool vertex = file.endsWith(QStringLiteral(".vert"));
    return QString::fromStdString(vertex ? graphics::vertexSource() : graphics::fragmentSource(qPrintable(stem)));
}

class ShaderSources : public testing::TestWithParam<Source>
{
};

} // namespace

TEST_P(ShaderSources, HaveTheStoredChecksum)
{
    EXPECT_EQ(checksumOf(compiledSource(GetParam().file)).toStdString(), GetParam().checksum);
}

INSTANTIATE_TEST_SUITE_P(Files, ShaderSources, testing::ValuesIn(sources),
                         [](const auto &test) { return QString(test.param.file).remove('.').toStdString(); });

TEST(ShaderSourcesTest, ChecksumIgnoresCommentsAndLayout)
{
    const QString source = QStringLiteral("float f(float x)\n{\n    return x*-0.0039;\n}\n");
    const QString sameTokens = QStringLiteral("/* a\nb */ float f( float x ){ // c\nreturn x * -0.0039; }");

    EXPECT_EQ(checksumOf(source), checksumOf(sameTokens));
}

TEST(ShaderSourcesTest, ChecksumDependsOnEveryToken)
{
    const QString checksum = checksumOf(QStringLiteral("x *= 0.0039 ;"));

    EXPECT_NE(checksum, checksumOf(QStringLiteral("x *= 0.00390 ;")));
    EXPECT_NE(checksum, checksumOf(QStringLiteral("y *= 0.0039 ;")));
    EXPECT_NE(checksum, checksumOf(QStringLiteral("x += 0.0039 ;")));
    EXPECT_NE(checksum, checksumOf(QStringLiteral("x * = 0.0039 ;")));
    EXPECT_NE(checksum, checksumOf(QStringLiteral("x *= 0.0039 ; ;")));
    EXPECT_NE(checksum, checksumOf(QStringLiteral("x *= 0.00 39 ;")));
}

} // namespace grisal::test
