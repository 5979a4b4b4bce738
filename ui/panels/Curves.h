// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

#include <memory>

namespace Ui
{
class Curves;
}

/// The tone curve. Says only the straight one so far.
class Curves : public QWidget
{
    Q_OBJECT

public:
    explicit Curves(QWidget *parent = nullptr);
    ~Curves() override;

signals:
    /// 256 outputs 0..1 for the greys 0..1.
    void signalCurves(QVector<float> curve);
    /// The tone histogram as it is behind the curve: 256 bins.
    void signalOutHistogram(QVector<float> histogram);

public slots:
    /// Takes the 256 bins of the picture's tone histogram.
    void slotSetHistogram(QVector<float> histogram);
    void on_buttonReset_clicked();

private:
    std::unique_ptr<Ui::Curves> m_form;
    QVector<float> m_histogram;
};
