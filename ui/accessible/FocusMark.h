// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

#include <array>

class QPainter;
class QWidget;

/// One line of a focus mark, as a rectangle.
struct FocusMarkLine {
    QRect place;
    bool dark = false;
};

/// The mark at the edge of an area, in painting order: a dark line of width 2 * `unit` between light lines of width
/// `unit`, so that it is visible on every colour.
std::array<FocusMarkLine, 8> focusMarkLines(const QRect &area, int unit);

/// Determines whether the keyboard focus of a widget is marked: always, except after a mouse click as long as no key is
/// used. To be a member of the widget.
class FocusMark : public QObject
{
public:
    explicit FocusMark(QWidget *widget);

    /// To be called when the widget has handled a key.
    void useKey();

    bool isSeen() const;

    /// Draws the mark if isSeen().
    void draw(QPainter &painter, const QRect &area) const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QWidget *m_widget;
    bool m_wanted = false;
};
