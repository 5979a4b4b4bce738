// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

namespace grisal::test
{

/// During its lifetime, intercepts URLs of one scheme that would be opened by another program.
class UrlTaker : public QObject
{
    Q_OBJECT

public:
    explicit UrlTaker(const QString &scheme);
    UrlTaker(const UrlTaker &) = delete;
    UrlTaker &operator=(const UrlTaker &) = delete;
    ~UrlTaker() override;

    QList<QUrl> taken;

public slots:
    void take(const QUrl &url) { taken << url; }

private:
    QString m_scheme;
};

} // namespace grisal::test
