// SPDX-License-Identifier: MIT
#include "graphics/Message.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

namespace
{

using grisal::graphics::Message;

/// Translates one text of one context.
class OneText : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool known = qstrcmp(context, "Message") == 0 && qstrcmp(source, "Cannot read %1") == 0;
        return known ? QStringLiteral("%1 ist unlesbar") : QString();
    }
};

TEST(MessageTest, IsEmptyInitially)
{
    EXPECT_TRUE(Message().isEmpty());
    EXPECT_TRUE(Message().english().isEmpty());
    EXPECT_TRUE(Message().translated().isEmpty());
    EXPECT_TRUE(Message::quoting(QString()).isEmpty());
}

TEST(MessageTest, OnlyTheTextForUsersIsTranslated)
{
    OneText translator;
    QCoreApplication::installTranslator(&translator);
    const Message message("Cannot read %1", QStringLiteral("/a.png"));
    EXPECT_FALSE(message.isEmpty());
    EXPECT_EQ(message.english(), QStringLiteral("Cannot read /a.png"));
    EXPECT_EQ(message.translated(), QStringLiteral("/a.png ist unlesbar"));
}

TEST(MessageTest, IsEnglishWithoutATranslation)
{
    EXPECT_EQ(Message("All went well").translated(), QStringLiteral("All went well"));
}

TEST(MessageTest, QuotationIsNotTranslated)
{
    OneText translator;
    QCoreApplication::installTranslator(&translator);
    const Message message = Message::quoting(QStringLiteral("Cannot read %1"));
    EXPECT_EQ(message.english(), QStringLiteral("Cannot read %1"));
    EXPECT_EQ(message.translated(), QStringLiteral("Cannot read %1"));
}

TEST(MessageTest, ReplacementChangesOnlyTheDetail)
{
    Message message("Cannot read %1", QStringLiteral("/proc/self/fd/7"));
    message.replaceInDetail(QStringLiteral("/proc/self/fd/7"), QStringLiteral("/read.png"));
    message.replaceInDetail(QStringLiteral("read"), QStringLiteral("dear"));
    EXPECT_EQ(message.english(), QStringLiteral("Cannot read /dear.png"));
}

} // namespace
