// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class SplitTone;
}

/// Split toning: one tint for the highlights and one for the shadows. Says only its initial settings so far.
class SplitTone : public QWidget
{
    Q_OBJECT

public:
    explicit SplitTone(QWidget *parent = nullptr);
    ~SplitTone() override;

signals:
    /// The share of the highlights, 1 being even, then the tints of highlights and shadows, 0..1.
    void signalSplit(float weight, float r1, float g1, float b1, float r2, float g2, float b2);

public slots:
    void on_buttonReset_clicked();

private:
    std::unique_ptr<Ui::SplitTone> m_form;
};
