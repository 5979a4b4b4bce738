// SPDX-License-Identifier: MIT
#pragma once

#include "graphics/look/ColorRGB.h"
#include "ui/accessible/AccessibleControl.h"
#include "ui/accessible/FocusMark.h"
#include "ui/frames/ChromaPlane.h"

#include <QFrame>

/// The colour wheel: a square of colours of one level (luma) with a marker at the selected colour. A press or a drag
/// selects a colour, also beyond the edge of the square; the mouse wheel changes the level. The arrow keys and Page Up
/// and Page Down do the same.
///
/// Colours are weights on the scale 0..255. Values from -512 to 512 are possible.
class YUVFrame : public QFrame, public AccessibleControl
{
    Q_OBJECT

public:
    explicit YUVFrame(QWidget *parent = nullptr);

    /// Sets the range of the plane: see chromaPlaneOf(). The image uses it the next time that it is computed. For an
    /// unknown mode a warning is logged; the mode is stored and the range stays as it is.
    void setColorSpace(int mode);

    int colorSpace() const { return m_colorSpace; }
    const ChromaPlane &plane() const { return m_plane; }
    float luma() const { return m_luma; }
    float chromaU() const { return m_chroma.u; }
    float chromaV() const { return m_chroma.v; }

    /// Position of the marker as fractions of the frame's width and height, from the top left corner.
    double markerX() const { return m_marker.x(); }
    double markerY() const { return m_marker.y(); }

    const QImage &wheelImage() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::ColorChooser; }
    QString accessibleValue() const override;

    /// Square if the layout has enough space.
    int heightForWidth(int width) const override { return width; }

signals:
    /// The weights that the user selected.
    void signalWeights(float r, float g, float b);

public slots:
    /// Shows the weights: sets level and marker and updates the image. Emits nothing.
    void slotSetRGB(grisal::graphics::ColorRGB<float> weights);

    /// Sets the level, clamped to -512..512; the marker stays. Emits nothing.
    void slotSetLuma(float luma);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// Draws the plane, the outlines of the colours 0..255 and of twice their saturation, the axes and the marker.
    void drawWheel(QPainter *painter);

private:
    void pick(const QMouseEvent *event);
    void choose(QPointF marker);
    void turnWheel(int delta);
    void emitWeights();
    QString hueName() const;
    void drawHexagon(QPainter &painter, int saturation) const;
    void drawAxes(QPainter &painter) const;
    void drawMarker(QPainter &painter) const;

    double m_scaleX = -1.0; // widget pixels per step of U
    double m_scaleY = -1.0;
    bool m_mousePressed = false;
    QPointF m_marker;
    mutable QImage m_wheelImage;
    mutable bool m_wheelImageIsOld = true;
    int m_colorSpace = 1;
    float m_luma = 255.0F;
    Chroma m_chroma;
    ChromaPlane m_plane;
    FocusMark m_focusMark{this};
};
