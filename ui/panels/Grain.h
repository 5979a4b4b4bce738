// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

#include <memory>

namespace Ui
{
class Grain;
}

/// Film grain: how strong it is at each grey, and how coarse. Says only its initial settings, no grain, so far.
class Grain : public QWidget
{
    Q_OBJECT

public:
    explicit Grain(QWidget *parent = nullptr);
    ~Grain() override;

signals:
    /// 256 strengths 0..1 for the greys 0..1, and the blur of the noise in pixels.
    void signalGrain(QVector<float> weights, float radius);

public slots:
    /// Takes the 256 bins of the tone histogram behind the curve of the strengths.
    void slotSetHistogram(QVector<float> histogram);
    void on_buttonReset_clicked();

private:
    std::unique_ptr<Ui::Grain> m_form;
};
