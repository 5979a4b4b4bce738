// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

#include <array>

class QPainter;
class QWidget;

/// One line of a focus mark.
struct FocusMarkLine {
    QRect place;
    bool dark = false;
};

/// The mark at the edge of an area, to be painted in its order: a dark line of twice `unit` between light ones of
/// `unit`, so that it is seen on every colour and grey.
std::array<FocusMarkLine, 8> focusMarkLines(const QRect &area, int unit);

/// Knows whether the keyboard focus of a widget is to be marked: wherever it came from, but not where it was brought by
/// the mouse and no key was used since. A member of the widget.
class FocusMark : public QObject
{
public:
    explicit FocusMark(QWidget *widget);

    /// To be called when the widget has taken a key.
    void useKey();

    bool isSeen() const;

    /// Draws the mark if it is to be seen.
    void draw(QPainter &painter, const QRect &area) const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QWidget *m_widget;
    bool m_wanted = false;
};
