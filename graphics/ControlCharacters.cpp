// SPDX-License-Identifier: MIT
#include "graphics/ControlCharacters.h"

namespace grisal::graphics
{

namespace
{

bool isControl(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

QString escaped(QChar character)
{
    switch (character.unicode()) {
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    const bool isByte = character.unicode() <= 0xff;
    return (isByte ? QStringLiteral("\\x%1") : QStringLiteral("\\u%1"))
        .arg(int{character.unicode()}, isByte ? 2 : 4, 16, QLatin1Char('0'));
}

} // namespace

QString escapeControlCharacters(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (isControl(character)) {
            result += escaped(character);
        } else {
            result += character;
        }
    }
    return result;
}

} // namespace grisal::graphics
