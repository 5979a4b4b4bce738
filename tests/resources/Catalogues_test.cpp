// SPDX-License-Identifier: MIT
// The source files of the translations are complete, consistent with the original texts, and up to date.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <vector>

namespace
{

const QString catalogueFolder = QStringLiteral(GRISAL_SOURCES "/resources/Translations/");
const QString guideFolder = QStringLiteral(GRISAL_SOURCES "/resources/Guide/");

struct Entry {
    QString context;
    QString source;
    QString comment;
    QString translation;
    QString state; ///< empty if the translation is finished
};

using Catalogue = std::vector<Entry>;

Entry nextEntry(QXmlStreamReader &xml, const QString &context)
{
    Entry entry{context, {}, {}, {}, {}};
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            entry.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            entry.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            entry.state = xml.attributes().value(QLatin1String("type")).toString();
            entry.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else {
            xml.skipCurrentElement();
        }
    }
    return entry;
}

Catalogue readCatalogue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QXmlStreamReader xml(&file);
    Catalogue catalogue;
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == QLatin1String("message")) {
            catalogue.push_back(nextEntry(xml, context));
        }
    }
    return catalogue;
}

/// The parts that match, in alphabetical order.
QStringList partsOf(const QString &text, const QString &pattern)
{
    QStringList parts;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();) {
        parts << matches.next().captured();
    }
    parts.sort();
    return parts;
}

QStringList sourceTexts(const Catalogue &catalogue)
{
    QStringList texts;
    for (const Entry &entry : catalogue) {
        texts << entry.context + QLatin1Char('|') + entry.source + QLatin1Char('|') + entry.comment;
    }
    texts.sort();
    return texts;
}

/// The text with each run of white space, including no-break spaces and line feeds, replaced by one space.
QString plainSpaces(const QString &text)
{
    return text.simplified().replace(QChar(QChar::Nbsp), QLatin1Char(' '));
}

QString guide(const QString &name)
{
    QFile file(guideFolder + name);
    return file.open(QIODevice::ReadOnly) ? plainSpaces(QString::fromUtf8(file.readAll())) : QString();
}

class Catalogues : public testing::TestWithParam<const char *>
{
protected:
    static QString language() { return QString::fromLatin1(GetParam()); }
    static QString path() { return catalogueFolder + QStringLiteral("grisal_%1.ts").arg(language()); }

    void SetUp() override { ASSERT_GT(catalogue.size(), 200U); }

    const Catalogue catalogue = readCatalogue(path());
};

TEST(CatalogueFolder, ContainsGermanAndFrench)
{
    EXPECT_EQ(QDir(catalogueFolder).entryList({QStringLiteral("*.ts")}).join(QLatin1Char(' ')).toStdString(),
              "grisal_de.ts grisal_fr.ts");
}

TEST_P(Catalogues, EveryTextIsTranslated)
{
    for (const Entry &entry : catalogue) {
        EXPECT_FALSE(entry.translation.trimmed().isEmpty()) << entry.source.toStdString();
        EXPECT_EQ(entry.state.toStdString(), "") << entry.source.toStdString();
    }
}

// A place marker may use the number format of the language: %L1.
TEST_P(Catalogues, PlaceMarkersMnemonicsAndMarkupMatchTheSource)
{
    for (const Entry &entry : catalogue) {
        const QString translation = QString(entry.translation).replace(QLatin1String("%L"), QLatin1String("%"));
        for (const char *pattern : {"%(\\d|n)", "&", "<[^>]*>", "\\n"}) {
            const QString part = QString::fromLatin1(pattern);
            EXPECT_EQ(partsOf(translation, part), partsOf(entry.source, part))
                << entry.source.toStdString() << ": " << entry.translation.toStdString();
        }
    }
}

TEST_P(Catalogues, EndsOfSentencesMatchTheSource)
{
    for (const Entry &entry : catalogue) {
        const QString marks = QStringLiteral("[.:?]\\s*$");
        EXPECT_EQ(partsOf(entry.translation.trimmed(), marks), partsOf(entry.source.trimmed(), marks))
            << entry.translation.toStdString();
    }
}

TEST_P(Catalogues, AreUpToDate)
{
    const QTemporaryDir folder;
    const QString fresh = folder.filePath(QStringLiteral("grisal_%1.ts").arg(language()));
    ASSERT_TRUE(QFile::copy(path(), fresh));
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(GRISAL_SOURCES));
    lupdate.start(QStringLiteral(GRISAL_LUPDATE), QStringLiteral(GRISAL_LUPDATE_ARGUMENTS).split(QLatin1Char(' '))
                                                      << QStringLiteral("-ts") << fresh);
    ASSERT_TRUE(lupdate.waitForFinished()) << lupdate.errorString().toStdString();
    ASSERT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().toStdString();
    EXPECT_EQ(sourceTexts(readCatalogue(fresh)), sourceTexts(catalogue)) << "build the target translations";
}

// Terms that are headings, bold or quoted in the English guide are translated in the other guides as in the program.
TEST_P(Catalogues, GuideUsesTheTermsOfTheProgram)
{
    const QString english = guide(QStringLiteral("guide.html"));
    const QString translated = guide(QStringLiteral("guide_%1.html").arg(language()));
    int named = 0;
    for (const Entry &entry : catalogue) {
        const QString source = plainSpaces(entry.source);
        const bool isNamed = english.contains(QStringLiteral("<b>%1</b>").arg(source)) ||
                             english.contains(QStringLiteral("“%1”").arg(source)) ||
                             english.contains(QStringLiteral("\">%1").arg(source));
        if (isNamed) {
            ++named;
            EXPECT_TRUE(translated.contains(plainSpaces(entry.translation))) << entry.translation.toStdString();
        }
    }
    EXPECT_GT(named, 10);
}

INSTANTIATE_TEST_SUITE_P(Languages, Catalogues, testing::Values("de", "fr"));

} // namespace
