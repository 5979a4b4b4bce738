// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QToolBar>

class QAction;

namespace grisal::ui
{

class FilterButtonStyle;

/// The tool bar at the left of the window, with a button for each filter.
/// All buttons have the same width. A filter stays on while another panel is visible, so each button shows both:
/// whether its filter is on, and whether its panel is visible.
class FilterToolBar : public QToolBar
{
public:
    explicit FilterToolBar(QWidget *parent);

    /// Adds a button for the mixer and, apart from it and with separators, one for each other filter.
    void addButtons(QAction *mixer, const QList<QAction *> &filters);

    /// Marks the button of the visible panel. Until the first call, no button is marked.
    void markShown(QAction *action);

private:
    void addButton(QAction *action);

    FilterButtonStyle *m_buttonStyle;
};

} // namespace grisal::ui
