// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRNetworkGate_p.h"

#include <QNetworkRequest>
#include <QUrl>

#include <utility>

namespace Hintreels {

namespace {

const QString refusal = QStringLiteral("qrc:/hintreels/refused?");

// Of those, none asks another machine; pictures of an image provider come from the host itself.
const QStringList localSchemes{
    QStringLiteral("file"),
    QStringLiteral("qrc"),
    QStringLiteral("data"),
    QStringLiteral("image"),
};

} // namespace

QUrl refusedUrl(const QUrl &url)
{
    return QUrl(refusal + QString::fromLatin1(QUrl::toPercentEncoding(url.toString())));
}

QString withoutRefusal(const QString &text)
{
    if (!text.startsWith(refusal))
        return text;
    return QUrl::fromPercentEncoding(text.mid(refusal.size()).toLatin1());
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
    if (isRemote(url))
        return m_gate->rules().network;
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
