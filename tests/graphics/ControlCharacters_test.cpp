// SPDX-License-Identifier: MIT
#include "graphics/ControlCharacters.h"

#include <gtest/gtest.h>

namespace
{

using grisal::graphics::escapeControlCharacters;

TEST(ControlCharacters, AreEscaped)
{
    EXPECT_EQ(escapeControlCharacters("a\nb\rc\td\x1b[31m\x7f" + QString(QChar(u'\0'))).toStdString(),
              "a\\nb\\rc\\td\\x1b[31m\\x7f\\x00");
    EXPECT_EQ(escapeControlCharacters(QStringLiteral(u"\u0085\u2028\u2029")).toStdString(), "\\x85\\u2028\\u2029");
}

TEST(ControlCharacters, LeaveOtherTextsUnchanged)
{
    for (const QString &text : {QString(), QStringLiteral(u"/home/Fotos/Größe → 3 µm \\n 😀.jpg")}) {
        EXPECT_EQ(escapeControlCharacters(text), text);
    }
}

} // namespace
