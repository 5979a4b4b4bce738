// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

namespace grisal::test
{

/// During its lifetime, intercepts URLs of one scheme that would be opened by another program.
class UrlInterceptor : public QObject
{
    Q_OBJECT

public:
    explicit UrlInterceptor(const QString &scheme);
    UrlInterceptor(const UrlInterceptor &) = delete;
    UrlInterceptor &operator=(const UrlInterceptor &) = delete;
    ~UrlInterceptor() override;

    QList<QUrl> urls;

public slots:
    void take(const QUrl &url) { urls << url; }

private:
    QString m_scheme;
};

} // namespace grisal::test
