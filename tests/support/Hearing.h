// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QStringList>
#include <QTest>

namespace grisal::test
{

/// Hears what a screen reader is told while it lives. One at a time.
class Hearing
{
public:
    Hearing()
    {
        s_current = this;
        m_before = QAccessible::installUpdateHandler(hear);
    }
    ~Hearing()
    {
        QAccessible::installUpdateHandler(m_before);
        s_current = nullptr;
    }
    Hearing(const Hearing &) = delete;
    Hearing &operator=(const Hearing &) = delete;

    /// The new values that an object told of since the last call. Each comes with a new description.
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

    static void hear(QAccessibleEvent *event)
    {
        QString value;
        if (event->type() == QAccessible::ValueChanged) {
            value = static_cast<QAccessibleValueChangeEvent *>(event)->value().toString();
        }
        s_current->m_events << Event{event->object(), event->type(), value};
    }

    static inline Hearing *s_current = nullptr;
    QAccessible::UpdateHandler m_before = nullptr;
    QList<Event> m_events;
};

/// Whether the toolkit speaks, which it does once it knows that somebody listens.
inline bool screenReaderListens()
{
    return qEnvironmentVariableIsSet("GRISAL_SCREEN_READER") && QTest::qWaitFor(QAccessible::isActive);
}

/// In a test or its SetUp(): skips where nobody listens, with the reason.
#define GRISAL_SKIP_WITHOUT_SCREEN_READER()                                                                            \
    if (!screenReaderListens()) {                                                                                      \
        GTEST_SKIP() << "no accessibility bus: run it with scripts/with-screen-reader";                                \
    }                                                                                                                  \
    static_cast<void>(0)

/// What a screen reader is answered.
inline QString spoken(QObject &object, QAccessible::Text text)
{
    return QAccessible::queryAccessibleInterface(&object)->text(text);
}

inline QAccessible::Role roleOf(QObject &object)
{
    return QAccessible::queryAccessibleInterface(&object)->role();
}

} // namespace grisal::test
