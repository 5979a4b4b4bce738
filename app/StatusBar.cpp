// SPDX-License-Identifier: MIT
#include "app/StatusBar.h"

#include <QLabel>
#include <QProgressBar>
#include <QTextDocument>

namespace grisal::ui
{

namespace
{

constexpr int messageDuration = 2000;
constexpr QSize progressBarSize(140, 12);

} // namespace

StatusBar::StatusBar(QWidget *parent)
    : QStatusBar(parent), m_hint(makeLabel("labelHint")), m_progressBar(new QProgressBar(this)),
      m_downscaling(makeLabel("labelDownscaling")), m_scale(makeLabel("labelScale"))
{
    m_hint->setIndent(fontMetrics().averageCharWidth());
    addWidget(m_hint);
    addProgressBar();
    addPermanentWidget(m_downscaling);
    addPermanentWidget(m_scale);
    m_downscaling->hide();
    m_scale->hide();
    m_downscaling->setToolTip(
        tr("The preview of a large picture is smaller than the picture. The file is saved in full size."));
    m_scale->setToolTip(tr("Size on the screen, in percent of the size in the file"));
}

QLabel *StatusBar::makeLabel(const char *name)
{
    auto *label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

void StatusBar::addProgressBar()
{
    m_progressBar->setObjectName(QStringLiteral("progressBar"));
    m_progressBar->setAccessibleName(tr("Progress"));
    m_progressBar->setAccessibleDescription(tr("Progress of reading, rendering or writing"));
    m_progressBar->setTextVisible(false);
    m_progressBar->setFixedSize(progressBarSize);
    // The progress bar appears during a job, while the layout cannot be updated, so its space is always reserved.
    QSizePolicy placed = m_progressBar->sizePolicy();
    placed.setRetainSizeWhenHidden(true);
    m_progressBar->setSizePolicy(placed);
    addPermanentWidget(m_progressBar);
    m_progressBar->hide();
}

void StatusBar::showBriefly(const QString &message)
{
    m_brief = message;
    showMessage(message, messageDuration);
    // A file name may contain characters that look like HTML.
    setToolTip(Qt::convertFromPlainText(message));
}

bool StatusBar::isShowingBriefly() const
{
    return !m_brief.isEmpty() && currentMessage() == m_brief;
}

void StatusBar::setHint(const QString &hint)
{
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
}

void StatusBar::setScale(int percent, int downscaling)
{
    m_downscaling->setText(tr("Preview 1:%1").arg(downscaling));
    m_downscaling->setVisible(downscaling > 1);
    m_scale->setText(tr("%1 %").arg(percent));
    m_scale->show();
}

} // namespace grisal::ui
