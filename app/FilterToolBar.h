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

    /// Adds a button for each action. The first stands apart from the others, between which there are separators.
    void addButtons(const QList<QAction *> &actions);

private:
    void addButton(QAction *action);
};

} // namespace grisal::ui
