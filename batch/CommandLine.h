// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>

namespace grisal::batch
{

/// A group of options in the help. The first name of an option may be a letter; the last one is always long.
struct OptionGroup {
    QString title;
    QList<QCommandLineOption> options;
};

/// All options of grisal-batch, in the order of the help.
QList<OptionGroup> optionGroups();

/// The texts of --help and --version: complete lines of at most 80 characters.
QString helpText();
QString versionText();

} // namespace grisal::batch
