// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QStringList>
#include <QTest>

namespace grisal::test
{

/// Records the accessibility events of Qt during its lifetime. Only one instance at a time.
class AccessibilityEventRecorder
{
public:
    AccessibilityEventRecorder()
    {
        s_current = this;
        m_before = QAccessible::installUpdateHandler(record);
    }
    ~AccessibilityEventRecorder()
    {
        QAccessible::installUpdateHandler(m_before);
        s_current = nullptr;
    }
    AccessibilityEventRecorder(const AccessibilityEventRecorder &) = delete;
    AccessibilityEventRecorder &operator=(const AccessibilityEventRecorder &) = delete;

    /// The new values that an object has reported since the last call. A new description must come with each value.
    QStringList valuesOf(const QObject &object)
    {
        QStringList values;
        int descriptions = 0;
        for (const Event &event : m_events) {
            if (event.object != &object) {
                continue;
            }
            descriptions += event.type == QAccessible::DescriptionChanged ? 1 : 0;
            if (event.type == QAccessible::ValueChanged) {
                values << event.value;
            }
        }
        m_events.clear();
        return descriptions == values.size() ? values : QStringList(QStringLiteral("not as many descriptions"));
    }

private:
    struct Event {
        const QObject *object;
        QAccessible::Event type;
        QString value;
    };

    static void record(QAccessibleEvent *event)
    {
        QString value;
        if (event->type() == QAccessible::ValueChanged) {
            value = static_cast<QAccessibleValueChangeEvent *>(event)->value().toString();
        }
        s_current->m_events << Event{event->object(), event->type(), value};
    }

    static inline AccessibilityEventRecorder *s_current = nullptr;
    QAccessible::UpdateHandler m_before = nullptr;
    QList<Event> m_events;
};

/// Whether Qt sends accessibility events, which it does as soon as it detects a screen reader.
inline bool isScreenReaderActive()
{
    return qEnvironmentVariableIsSet("GRISAL_SCREEN_READER") && QTest::qWaitFor(QAccessible::isActive);
}

/// For a test or its SetUp(): skips the test with the reason if there is no screen reader.
#define GRISAL_SKIP_WITHOUT_SCREEN_READER()                                                                            \
    if (!isScreenReaderActive()) {                                                                                     \
        GTEST_SKIP() << "no accessibility bus: run it with scripts/with-screen-reader";                                \
    }                                                                                                                  \
    static_cast<void>(0)

/// The text that a screen reader receives.
inline QString accessibleText(QObject &object, QAccessible::Text text)
{
    return QAccessible::queryAccessibleInterface(&object)->text(text);
}

inline QAccessible::Role roleOf(QObject &object)
{
    return QAccessible::queryAccessibleInterface(&object)->role();
}

} // namespace grisal::test
