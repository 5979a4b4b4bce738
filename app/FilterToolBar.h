// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QToolBar>

class QAction;

namespace grisal::ui
{

/// The tool bar at the left of the window, with a button for each filter.
class FilterToolBar : public QToolBar
{
public:
    explicit FilterToolBar(QWidget *parent);

    /// Adds a button for the mixer and, apart from it and with separators, one for each other filter.
    void addButtons(QAction *mixer, const QList<QAction *> &filters);

private:
    void addButton(QAction *action);
};

} // namespace grisal::ui
