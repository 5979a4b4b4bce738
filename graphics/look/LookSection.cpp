// SPDX-License-Identifier: MIT
#include "graphics/look/LookSection.h"

#include "graphics/ControlCharacters.h"

#include <algorithm>
#include <utility>

namespace grisal::graphics
{

namespace
{

QString inQuotes(const QString &text)
{
    constexpr qsizetype longest = 40;
    const QString shown = text.size() > longest ? text.left(longest) + QStringLiteral("...") : text;
    return QStringLiteral("\"%1\"").arg(escapeControlCharacters(shown));
}

QString described(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 8);
    case QJsonValue::String:
        return inQuotes(value.toString());
    case QJsonValue::Array:
        return QStringLiteral("a list of %1").arg(value.toArray().size());
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("null");
    }
}

QString described(NumberRange range)
{
    const QString lowest = QString::number(range.lowest, 'g', 8);
    return range.lowest == range.highest
               ? lowest
               : QStringLiteral("a number from %1 to %2").arg(lowest).arg(range.highest, 0, 'g', 8);
}

bool isNumberIn(const QJsonValue &value, NumberRange range)
{
    return value.isDouble() && value.toDouble() >= range.lowest && value.toDouble() <= range.highest;
}

} // namespace

LookError::LookError(const QString &key, const QJsonValue &found, const QString &allowed)
    : LookError(QStringLiteral("%1 is %2; allowed is %3").arg(inQuotes(key), described(found), allowed))
{
}

LookSection::LookSection(QString name, QJsonObject object) : m_name(std::move(name)), m_object(std::move(object)) {}

QString LookSection::path(const QString &key) const
{
    return m_name.isEmpty() ? key : m_name + '.' + key;
}

QJsonValue LookSection::take(const QString &key)
{
    m_known << key;
    return m_object.contains(key) ? m_object.take(key) : QJsonValue(QJsonValue::Undefined);
}

std::optional<LookSection> LookSection::section(const QString &key)
{
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
        return std::nullopt;
    }
    if (!value.isObject()) {
        throw LookError(path(key), value, QStringLiteral("an object"));
    }
    return LookSection(path(key), value.toObject());
}

std::optional<bool> LookSection::flag(const QString &key)
{
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
        return std::nullopt;
    }
    if (!value.isBool()) {
        throw LookError(path(key), value, QStringLiteral("true or false"));
    }
    return value.toBool();
}

std::optional<QString> LookSection::choice(const QString &key, const QStringList &choices)
{
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
        return std::nullopt;
    }
    if (!value.isString() || !choices.contains(value.toString())) {
        throw LookError(path(key), value, QStringLiteral("\"%1\"").arg(choices.join(QStringLiteral("\" or \""))));
    }
    return value.toString();
}

std::optional<double> LookSection::number(const QString &key, NumberRange range)
{
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
        return std::nullopt;
    }
    if (!isNumberIn(value, range)) {
        throw LookError(path(key), value, described(range));
    }
    return value.toDouble();
}

void LookSection::readNumbers(const QString &key, std::span<float> values, NumberRange range)
{
    if (values.size() == 1) {
        values[0] = static_cast<float>(number(key, range).value_or(values[0]));
        return;
    }
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
        return;
    }
    const QList<double> numbers =
        numbersIn(value, path(key), QList<NumberRange>(static_cast<qsizetype>(values.size()), range));
    std::transform(numbers.begin(), numbers.end(), values.begin(), [](double one) { return static_cast<float>(one); });
}

std::optional<QJsonArray> LookSection::list(const QString &key, qsizetype fewest, qsizetype most)
{
    const QJsonValue value = take(key);
    if (value.isUndefined()) {
        return std::nullopt;
    }
    const QJsonArray entries = value.toArray();
    if (!value.isArray() || entries.size() < fewest || entries.size() > most) {
        throw LookError(path(key), value, QStringLiteral("a list of %1 to %2").arg(fewest).arg(most));
    }
    return entries;
}

void LookSection::expectNoOtherKeys() const
{
    if (!m_object.isEmpty()) {
        throw LookError(QStringLiteral("%1 is unknown; allowed here are %2")
                            .arg(inQuotes(path(m_object.keys().first())), m_known.join(QStringLiteral(", "))));
    }
}

QList<double> numbersIn(const QJsonValue &value, const QString &path, const QList<NumberRange> &ranges)
{
    const QJsonArray entries = value.toArray();
    if (!value.isArray() || entries.size() != ranges.size()) {
        throw LookError(path, value, QStringLiteral("a list of %1 numbers").arg(ranges.size()));
    }
    QList<double> numbers;
    for (qsizetype i = 0; i < ranges.size(); ++i) {
        if (!isNumberIn(entries[i], ranges[i])) {
            throw LookError(QStringLiteral("%1[%2]").arg(path).arg(i), entries[i], described(ranges[i]));
        }
        numbers << entries[i].toDouble();
    }
    return numbers;
}

} // namespace grisal::graphics
