// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRNetworkAccess_p.h"

#include <QNetworkRequest>
#include <QUrl>

#include <utility>

namespace Hintreels {

namespace {

const QString refusal = QStringLiteral("qrc:/hintreels/refused?");
const QString farScheme = QStringLiteral("hintreels-far");
const QString far = farScheme + QLatin1String(":?");

// Of those, none asks another machine; pictures of an image provider come from the host itself.
const QStringList localSchemes{
    QStringLiteral("file"),
    QStringLiteral("qrc"),
    QStringLiteral("data"),
    QStringLiteral("image"),
};

QString encoded(const QUrl &url)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(url.toString()));
}

} // namespace

QUrl refusedUrl(const QUrl &url)
{
    return QUrl(refusal + encoded(url));
}

QUrl farUrl(const QUrl &url)
{
    return url.scheme() == farScheme ? url : QUrl(far + encoded(url));
}

QString withoutRefusal(const QString &text)
{
    for (const QString &mark : { refusal, far }) {
        if (text.startsWith(mark))
            return QUrl::fromPercentEncoding(text.mid(mark.size()).toLatin1());
    }
    return text;
}

bool isRemote(const QUrl &url)
{
    return !url.scheme().isEmpty() && !localSchemes.contains(url.scheme());
}

HRNetworkAccess::HRNetworkAccess(
    std::shared_ptr<const HRFileGate> gate, HRRefuse refuse, QObject *parent)
    : QNetworkAccessManager(parent)
    , m_gate(std::move(gate))
    , m_refuse(std::move(refuse))
{
}

QNetworkReply *HRNetworkAccess::createRequest(
    Operation operation, const QNetworkRequest &request, QIODevice *data)
{
    if (isAllowed(operation, request.url()))
        return QNetworkAccessManager::createRequest(operation, request, data);
    const QNetworkRequest refused(refusedUrl(request.url()));
    return QNetworkAccessManager::createRequest(GetOperation, refused, nullptr);
}

bool HRNetworkAccess::isAllowed(Operation operation, const QUrl &url) const
{
    if (isRemote(url)) {
        const bool allowed = m_gate->rules().network;
        if (!allowed)
            m_refuse(QStringLiteral("url"), withoutRefusal(url.toString()));
        return allowed;
    }
    if (operation != GetOperation && operation != HeadOperation)
        return false;
    if (!url.isLocalFile() || m_gate->mayOpen(url.toLocalFile(), HRFileUse::any))
        return true;
    m_refuse(QStringLiteral("url"), url.toLocalFile());
    return false;
}

HRNetworkAccessFactory::HRNetworkAccessFactory(
    std::shared_ptr<const HRFileGate> gate, HRRefuse refuse)
    : m_gate(std::move(gate))
    , m_refuse(std::move(refuse))
{
}

QNetworkAccessManager *HRNetworkAccessFactory::create(QObject *parent)
{
    return new HRNetworkAccess(m_gate, m_refuse, parent);
}

} // namespace Hintreels
