// SPDX-License-Identifier: MIT
// GLEW has to be included before any Qt header that includes the OpenGL headers.
#include "ui/preview/GLWidget.h"

#include "app/FilterPanels.h"

#include "ui/panels/Curves.h"
#include "ui/panels/Grain.h"
#include "ui/panels/Mixer.h"
#include "ui/panels/Sharpen.h"
#include "ui/panels/SplitTone.h"
#include "ui/panels/Vignette.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <initializer_list>

namespace grisal::ui
{

FilterPanels::FilterPanels(QWidget &window)
    : mixer(new Mixer(&window)), vignette(new Vignette(&window)), splitTone(new SplitTone(&window)),
      grain(new Grain(&window)), sharpen(new Sharpen(&window)), curves(new Curves(&window)), m_window(window),
      m_stack(new QStackedLayout)
{
}

void FilterPanels::setUp(QWidget &container, GLWidget &preview)
{
    container.setContentsMargins(0, 0, 0, 0);
    auto *layout = new QVBoxLayout(&container);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->addLayout(m_stack);
    for (QWidget *panel : std::initializer_list<QWidget *>{mixer, vignette, splitTone, grain, sharpen, curves}) {
        m_stack->addWidget(panel);
    }
    connectTo(preview);
}

void FilterPanels::connectTo(GLWidget &preview)
{
    QObject::connect(mixer, &Mixer::signalMixer, &preview, &GLWidget::slotChangeMixer, Qt::UniqueConnection);
    QObject::connect(vignette, &Vignette::signalVignette, &preview, &GLWidget::slotChangeVignette,
                     Qt::UniqueConnection);
    QObject::connect(splitTone, &SplitTone::signalSplit, &preview, &GLWidget::slotChangeSplit, Qt::UniqueConnection);
    QObject::connect(grain, &Grain::signalGrain, &preview, &GLWidget::slotChangeGrain, Qt::UniqueConnection);
    QObject::connect(curves, &Curves::signalCurves, &preview, &GLWidget::slotChangeCurves, Qt::UniqueConnection);
    QObject::connect(curves, &Curves::signalOutHistogram, grain, &Grain::slotSetHistogram, Qt::UniqueConnection);
}

void FilterPanels::show(QWidget *panel)
{
    takeTypedNumber();
    m_stack->setCurrentWidget(panel);
}

bool FilterPanels::toggle(QWidget *panel, QAction &action)
{
    const bool on = m_stack->currentWidget() != panel;
    show(on ? panel : mixer);
    action.setChecked(on);
    return on;
}

void FilterPanels::reset()
{
    mixer->on_buttonReset_clicked();
    vignette->on_buttonReset_clicked();
    splitTone->on_buttonReset_clicked();
    grain->on_buttonReset_clicked();
    curves->on_buttonReset_clicked();
}

graphics::Look FilterPanels::look(const GLWidget &preview) const
{
    const graphics::FilterParameters &sent = preview.parameters();
    graphics::Look look;
    look.enabled = preview.enabledFilters();
    look.mixer = sent.get<graphics::MixerFilter>();
    look.toneCurve = curves->curve();
    look.grainStrength = grain->curve();
    look.grainRadius = sent.get<graphics::GrainFilter>().radius;
    look.splitTone = sent.get<graphics::HalfToneFilter>();
    look.vignette = sent.get<graphics::VignetteFilter>();
    return look;
}

// A shortcut leaves the focus in the spin box, which emits a typed number only when the input is complete.
void FilterPanels::takeTypedNumber()
{
    if (auto *spinBox = qobject_cast<QAbstractSpinBox *>(m_window.focusWidget())) {
        spinBox->interpretText();
    }
}

} // namespace grisal::ui
