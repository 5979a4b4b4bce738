// SPDX-License-Identifier: MIT
#include "tests/support/GuiTest.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QSettings>
#include <QTimerEvent>

#include <algorithm>

namespace grisal::test
{

namespace
{

bool contains(const QStringList &texts, const QString &part)
{
    return std::any_of(texts.begin(), texts.end(), [&](const QString &text) { return text.contains(part); });
}

} // namespace

// HOME is replaced, but the cache directory stays the same, because the OpenGL driver has already stored the location
// of its shader cache.
GuiTest::GuiTest() : m_homeBefore(qgetenv("HOME")), m_configBefore(qgetenv("XDG_CONFIG_HOME"))
{
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", inHome(QStringLiteral(".config")).toLocal8Bit());
    // Qt determines the location of the settings once, so changing the environment is not sufficient.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, inHome(QStringLiteral(".config")));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

GuiTest::~GuiTest()
{
    qputenv("HOME", m_homeBefore);
    qputenv("XDG_CONFIG_HOME", m_configBefore);
}

void GuiTest::expectWarning(const QString &part)
{
    allowWarning(part);
    m_expectedWarnings << part;
}

void GuiTest::allowWarning(const QString &part)
{
    if (part.isEmpty()) {
        throw std::invalid_argument("an empty part announces every warning");
    }
    m_allowedWarnings << part;
}

void GuiTest::TearDown()
{
    if (IsSkipped()) {
        return;
    }
    const QStringList warnings = log.warnings();
    for (const QString &warning : warnings) {
        const bool allowed = std::any_of(m_allowedWarnings.begin(), m_allowedWarnings.end(),
                                         [&](const QString &part) { return warning.contains(part); });
        EXPECT_TRUE(allowed) << "unexpected warning: " << warning.toStdString();
    }
    for (const QString &part : m_expectedWarnings) {
        EXPECT_TRUE(contains(warnings, part)) << "missing warning: " << part.toStdString();
    }
}

std::string methodsOf(const QMetaObject &meta, char between)
{
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    return methods.join(QLatin1Char(between)).toStdString();
}

void timeOutNow(QTimer &timer)
{
    if (timer.isActive()) {
        QTimerEvent timeout(timer.timerId());
        QCoreApplication::sendEvent(&timer, &timeout);
    }
}

void trigger(const QObject &window, const char *name)
{
    auto &action = child<QAction>(window, name);
    if (!action.isEnabled() || !action.isVisible()) {
        throw std::runtime_error(std::string("the user cannot reach the action ") + name);
    }
    action.trigger();
}

} // namespace grisal::test
