// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

class QPointF;

namespace Ui
{
class Vignette;
}

/// The vignette: where its centre lies, how far it reaches and how strong it is, with sliders or on a small picture.
///
/// Controls and signal count in percent, 0..99. The small picture counts in fractions, finer than whole percents: it
/// keeps what the mouse chose, the controls and the signal have it cut to whole percents.
class Vignette : public QWidget
{
    Q_OBJECT

public:
    explicit Vignette(QWidget *parent = nullptr);
    ~Vignette() override;

signals:
    /// Centre in percent of width and height, radius and strength in percent.
    void signalVignette(float x, float y, float radius, float strength, bool extraBlur);

public slots:
    void on_sliderX_valueChanged(int value);
    void on_sliderY_valueChanged(int value);
    void on_sliderRadius_valueChanged(int value);
    void on_sliderStrength_valueChanged(int value);
    void on_spinBoxX_valueChanged(int value);
    void on_spinBoxY_valueChanged(int value);
    void on_spinBoxRadius_valueChanged(int value);
    void on_spinBoxStrength_valueChanged(int value);

    /// Half of everything. The check box goes, and stays as it is checked.
    void on_buttonReset_clicked();
    void on_checkBoxBlur_clicked();

    /// Take fractions, also beyond 0..1.
    void slotSetPosition(QPointF position);
    void slotSetRadius(float radius);
    void slotSetStrength(float strength);

private:
    void showRadius(float radius);
    void showStrength(float strength);
    void emitVignette();

    std::unique_ptr<Ui::Vignette> m_form;
};
