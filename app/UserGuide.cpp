// SPDX-License-Identifier: MIT
#include "app/UserGuide.h"

#include "app/Translation.h"
#include "ui_UserGuide.h"

#include <QEvent>
#include <QLocale>
#include <QScreen>
#include <QScrollBar>

namespace
{

constexpr int pageMargin = 16;
constexpr double screenShare = 0.9;

} // namespace

QUrl guideFor(const QLocale &locale)
{
    const QString translated = fileInLanguageOf(locale, QStringLiteral(":/Guide/Guide/guide_%1.html"));
    return QUrl(QStringLiteral("qrc") +
                (translated.isEmpty() ? QStringLiteral(":/Guide/Guide/guide.html") : translated));
}

UserGuide::UserGuide(QWidget *parent) : QDialog(parent, Qt::Window), m_form(std::make_unique<Ui::UserGuide>())
{
    m_form->setupUi(this);
    fitOnScreen();
    QTextBrowser *browser = m_form->browserGuide;
    connect(m_form->buttonContents, &QPushButton::clicked, browser, &QTextBrowser::home);
    connect(m_form->buttonBack, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(m_form->buttonForward, &QPushButton::clicked, browser, &QTextBrowser::forward);
    connect(browser, &QTextBrowser::backwardAvailable, m_form->buttonBack, &QPushButton::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, m_form->buttonForward, &QPushButton::setEnabled);
    browser->document()->setDocumentMargin(pageMargin);
    browser->setSource(guideFor(QLocale()));
    browser->setFocus();
}

UserGuide::~UserGuide() = default;

void UserGuide::fitOnScreen()
{
    resize(size().boundedTo(screen()->availableSize() * screenShare));
}

void UserGuide::present()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void UserGuide::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        readAgain();
    }
}

// A document keeps the link colour of the palette with which it was loaded; after a change to a dark palette, links
// would be dark on dark.
void UserGuide::readAgain()
{
    const int place = m_form->browserGuide->verticalScrollBar()->value();
    m_form->browserGuide->reload();
    m_form->browserGuide->verticalScrollBar()->setValue(place);
}
