// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <stdexcept>

namespace grisal::graphics
{

/// Why a text is not a look: one sentence in English.
class LookError : public std::runtime_error
{
public:
    explicit LookError(const QString &problem) : std::runtime_error(problem.toStdString()) {}
    /// `found` is what the text contains at `key`.
    LookError(const QString &key, const QJsonValue &found, const QString &allowed);
};

/// The range of a number, bounds included.
struct NumberRange {
    double lowest;
    double highest;
};

/// A JSON object that is read strictly: a value of the wrong type or out of range and a key that was not read throw
/// a LookError.
class LookSection
{
public:
    /// `name` precedes the keys in messages; empty for the whole text.
    LookSection(QString name, QJsonObject object);

    /// These functions return the value of a key, and nothing if there is no such key.
    std::optional<LookSection> section(const QString &key);
    std::optional<bool> flag(const QString &key);
    std::optional<QString> choice(const QString &key, const QStringList &choices);
    std::optional<double> number(const QString &key, NumberRange range);
    std::optional<QJsonArray> list(const QString &key, qsizetype fewest, qsizetype most);

    /// Sets the values to the number or, if there are several, the list of as many numbers of a key; leaves them
    /// unchanged if there is no such key.
    void readNumbers(const QString &key, std::span<float> values, NumberRange range);

    /// Throws if the object contains a key that was not read.
    void expectNoOtherKeys() const;

    /// The key as messages contain it: with the name of the section.
    QString path(const QString &key) const;

private:
    QJsonValue take(const QString &key);

    QString m_name;
    QJsonObject m_object;
    QStringList m_known;
};

/// Returns the numbers of a list that has one number in each of the ranges; throws otherwise.
QList<double> numbersIn(const QJsonValue &value, const QString &path, const QList<NumberRange> &ranges);

} // namespace grisal::graphics
