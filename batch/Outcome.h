// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

namespace grisal::batch
{

enum class Result { Done, Skipped, Failed };

/// What became of a picture.
struct Outcome {
    Result result = Result::Failed;
    QString message;    ///< why it failed or was skipped, or what is wrong with its output; empty normally
    int width = 0;      ///< of the picture in pixels; 0 if it was not read
    int height = 0;     ///< the same
    int depth = 0;      ///< bits per channel, 8 or 16; 0 if it was not read
    double seconds = 0; ///< how long the conversion took
};

/// The keys "result", "message", "size", a list of width and height, "depth" and "seconds". Size and depth are absent
/// if the picture was not read.
QJsonObject toJson(const Outcome &outcome);

/// The reverse of toJson().
Outcome outcomeOf(const QJsonObject &json);

} // namespace grisal::batch
