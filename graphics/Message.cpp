// SPDX-License-Identifier: MIT
#include "graphics/Message.h"

#include <QCoreApplication>

#include <utility>

namespace grisal::graphics
{

Message::Message(const char *text, QString detail) : m_text(text), m_detail(std::move(detail)) {}

Message Message::quoting(const QString &words)
{
    return Message(nullptr, words);
}

bool Message::isEmpty() const
{
    return m_text == nullptr && m_detail.isEmpty();
}

QString Message::english() const
{
    return m_text == nullptr ? m_detail : complete(QString::fromUtf8(m_text));
}

QString Message::translated() const
{
    return m_text == nullptr ? m_detail : complete(QCoreApplication::translate("Message", m_text));
}

void Message::replaceInDetail(const QString &before, const QString &after)
{
    m_detail.replace(before, after);
}

// QString::arg() would log a warning for a text without %1.
QString Message::complete(QString text) const
{
    return text.replace(QStringLiteral("%1"), m_detail);
}

} // namespace grisal::graphics
