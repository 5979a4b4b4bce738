// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace grisal::ui
{

/// Draws the buttons of filters: a checked button is filled with the highlight colour of the palette, the button of the
/// visible panel has a bold line below its text. Everything else is drawn by the style of the application.
class FilterButtonStyle : public QProxyStyle
{
public:
    /// The button with the line; null for none. The caller repaints the buttons.
    void setShown(const QWidget *button) { m_shown = button; }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

private:
    const QWidget *m_shown = nullptr; // compared only, never dereferenced
};

} // namespace grisal::ui
