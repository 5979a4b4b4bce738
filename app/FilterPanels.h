// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/Look.h"

class Curves;
class Grain;
class Mixer;
class QAction;
class QStackedLayout;
class QWidget;
class Sharpen;
class SplitTone;
class Vignette;

namespace grisal::ui
{

class GLWidget;

/// The panels of the filters, of which one is visible, connected to the preview. They are children of the window.
class FilterPanels
{
public:
    explicit FilterPanels(QWidget &window);

    /// Puts the panels into `container`, which has no layout, and connects them. The mixer is visible.
    void setUp(QWidget &container, GLWidget &preview);

    /// Makes a panel visible and applies the number that is being typed into the former one.
    void show(QWidget *panel);

    /// Makes a panel visible or, if it is visible, returns to the mixer. Returns whether the panel is visible now, and
    /// checks the action accordingly.
    bool toggle(QWidget *panel, QAction &action);

    /// Everything that the panels have sent to the preview, and which of its filters are on. Values that a panel shows
    /// but has not sent yet are not included, because the picture does not show them either.
    graphics::Look look(const GLWidget &preview) const;

    /// Resets the panels that send parameters to the preview, in a fixed order.
    void reset();

    /// Applies the number that is being typed into a panel. To be called before the values of the panels are used.
    void takeTypedNumber();

    Mixer *const mixer;
    Vignette *const vignette;
    SplitTone *const splitTone;
    Grain *const grain;
    Sharpen *const sharpen;
    Curves *const curves;

private:
    void connectTo(GLWidget &preview);

    QWidget &m_window;
    QStackedLayout *m_stack;
};

} // namespace grisal::ui
