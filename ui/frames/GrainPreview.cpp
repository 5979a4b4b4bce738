// SPDX-License-Identifier: MIT
#include "ui/frames/GrainPreview.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int mapWidth = 400;
constexpr int mapHeight = 60;

int alphaOf(float weight)
{
    return weight > 0 ? static_cast<int>(std::min(weight, 1.0F) * 255) : 0;
}

} // namespace

QString grainTileFile(float radius)
{
    const float whole = std::floor(radius);
    const float tenths = std::floor((radius - whole) * 10);
    return QStringLiteral(":/Prerender/Icons/Blur/blur_%1_%2.png").arg(static_cast<int>(whole)).arg(tenths < 5 ? 0 : 5);
}

GrainPreview::GrainPreview(QWidget *parent) : QFrame(parent), m_map(mapWidth, mapHeight, QImage::Format_ARGB32)
{
    // Used if no tile can be loaded: with this grey the overlay has no visible effect.
    m_map.fill(qRgba(128, 128, 128, 0));
    slotSetRadius(1.5F);
}

void GrainPreview::slotSetRadius(float radius)
{
    if (qFuzzyCompare(radius, m_radius)) {
        return;
    }
    m_radius = radius;
    if (!m_map.isNull()) {
        const QString file = grainTileFile(radius);
        const QImage tile(file);
        if (tile.isNull()) {
            qWarning("Cannot find preblurred map: %s", qPrintable(file));
        } else {
            QPainter painter(&m_map);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.drawImage(0, 0, tile);
        }
    }
    slotAdjustWeights(m_fulcrums);
    update();
    notifyValueChanged();
}

void GrainPreview::slotAdjustWeights(const QVector<float> &weights)
{
    if (!weights.isEmpty()) {
        m_fulcrums = weights;
    }
    if (m_fulcrums.isEmpty()) {
        return;
    }
    if (!m_map.isNull() && m_painted.width() >= m_map.width()) {
        qWarning("Prerendered map is too small.");
    }
    applyWeights();
    update();
    notifyValueChanged();
}

QString GrainPreview::accessibleValue() const
{
    QString blur = tr("Blurred by %1 pixels").arg(m_radius, 0, 'f', 1);
    if (m_fulcrums.isEmpty()) {
        return blur;
    }
    const auto percent = [this](qsizetype grey) { return std::lround(std::clamp(m_fulcrums[grey], 0.0F, 1.0F) * 100); };
    return tr("%1, %2 % strong in the blacks, %3 % in the middle greys, %4 % in the whites")
        .arg(blur)
        .arg(percent(0))
        .arg(percent(m_fulcrums.size() / 2))
        .arg(percent(m_fulcrums.size() - 1));
}

void GrainPreview::applyWeights()
{
    const int width = m_painted.width();
    if (m_map.isNull() || width >= m_map.width()) {
        return;
    }
    for (int x = 0; x < width; ++x) {
        const auto grey = static_cast<qsizetype>(x * (255.0 / width));
        if (grey >= m_fulcrums.size()) {
            return;
        }
        const int alpha = alphaOf(m_fulcrums[grey]);
        for (int y = 0; y < mapHeight; ++y) {
            QRgb &pixel = reinterpret_cast<QRgb *>(m_map.scanLine(y))[x];
            pixel = qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), alpha);
        }
    }
}

void GrainPreview::paintEvent(QPaintEvent *)
{
    // The weights are applied per column, so they have to be applied again when the size of the strip changes.
    if (m_painted != rect()) {
        m_painted = rect();
        applyWeights();
    }
    QImage strip(size(), QImage::Format_ARGB32);
    QLinearGradient ramp(0, 0, width(), 0);
    ramp.setColorAt(0, Qt::black);
    ramp.setColorAt(1, Qt::white);
    QPainter onStrip(&strip);
    onStrip.fillRect(strip.rect(), ramp);
    onStrip.setCompositionMode(QPainter::CompositionMode_Overlay);
    onStrip.drawImage(0, 0, m_map);
    onStrip.end();

    QPainter(this).drawImage(0, 0, strip);
}
