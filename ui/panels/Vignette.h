// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>

class QPointF;
class QSize;

namespace Ui
{
class Vignette;
}

/// The vignette: position of its centre, radius and strength, set with sliders or in a small preview.
///
/// Controls and signal use percent, 0..99. The preview uses fractions, which are finer than whole percents: it keeps
/// the values that the mouse sets, while controls and signal contain them truncated to whole percents.
class Vignette : public QWidget
{
    Q_OBJECT

public:
    explicit Vignette(QWidget *parent = nullptr);
    ~Vignette() override;

    /// Sets the size of the photograph, whose proportions the preview takes.
    void setImageSize(QSize size);

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

    /// Sets everything to 50 %. The check box is hidden and keeps its state.
    void on_buttonReset_clicked();
    void on_checkBoxBlur_clicked();

    /// These slots take fractions, which may be outside of 0..1.
    void slotSetPosition(QPointF position);
    void slotSetRadius(float radius);
    void slotSetStrength(float strength);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void limitFrame();
    void showRadius(float radius);
    void showStrength(float strength);
    void emitVignette();

    std::unique_ptr<Ui::Vignette> m_form;
};
