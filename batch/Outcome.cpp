// SPDX-License-Identifier: MIT
#include "batch/Outcome.h"

#include <QJsonArray>
#include <QStringList>

#include <cmath>

namespace grisal::batch
{

namespace
{

// In the order of the enumeration.
const QStringList resultNames{QStringLiteral("done"), QStringLiteral("skipped"), QStringLiteral("failed")};

double roundedToMilliseconds(double seconds)
{
    constexpr double perSecond = 1000;
    return std::round(seconds * perSecond) / perSecond;
}

} // namespace

QJsonObject toJson(const Outcome &outcome)
{
    QJsonObject json{{QStringLiteral("result"), resultNames[static_cast<int>(outcome.result)]},
                     {QStringLiteral("message"), outcome.message},
                     {QStringLiteral("seconds"), roundedToMilliseconds(outcome.seconds)}};
    if (outcome.depth > 0) {
        json[QStringLiteral("size")] = QJsonArray{outcome.width, outcome.height};
        json[QStringLiteral("depth")] = outcome.depth;
    }
    return json;
}

Outcome outcomeOf(const QJsonObject &json)
{
    const qsizetype result = resultNames.indexOf(json[QStringLiteral("result")].toString());
    const QJsonArray size = json[QStringLiteral("size")].toArray();
    Outcome outcome;
    outcome.result = result < 0 ? Result::Failed : static_cast<Result>(result);
    outcome.message = json[QStringLiteral("message")].toString();
    outcome.width = size.at(0).toInt();
    outcome.height = size.at(1).toInt();
    outcome.depth = json[QStringLiteral("depth")].toInt();
    outcome.seconds = json[QStringLiteral("seconds")].toDouble();
    return outcome;
}

} // namespace grisal::batch
