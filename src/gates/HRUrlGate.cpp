// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRUrlGate_p.h"

#include "gates/HRNetworkAccess_p.h"

#include <QUrl>

#include <utility>

namespace Hintreels {

namespace {

QString kindOf(QQmlAbstractUrlInterceptor::DataType type)
{
    switch (type) {
    case QQmlAbstractUrlInterceptor::QmlFile:
        return QStringLiteral("QML file");
    case QQmlAbstractUrlInterceptor::JavaScriptFile:
        return QStringLiteral("script");
    case QQmlAbstractUrlInterceptor::QmldirFile:
        return QStringLiteral("qmldir");
    case QQmlAbstractUrlInterceptor::UrlString:
        break;
    }
    return QStringLiteral("url");
}

} // namespace

HRUrlGate::HRUrlGate(std::shared_ptr<const HRFileGate> gate, HRRefuse refuse)
    : m_gate(std::move(gate))
    , m_refuse(std::move(refuse))
{
}

QUrl HRUrlGate::intercept(const QUrl &url, DataType type)
{
    if (isRemote(url) && !m_gate->rules().network)
        return interceptFar(url, type);
    return allows(url, type) ? url : refusedUrl(url);
}

/// What a property holds may be a link, which nobody loads.
QUrl HRUrlGate::interceptFar(const QUrl &url, DataType type) const
{
    if (type == UrlString)
        return farUrl(url);
    m_refuse(kindOf(type), withoutRefusal(url.toString()));
    return refusedUrl(url);
}

bool HRUrlGate::allows(const QUrl &url, DataType type) const
{
    if (url.isLocalFile())
        return allowsFile(url.toLocalFile(), type);
    // QML in a data URL would not be seen for what it imports.
    const bool isHidden = type != UrlString && url.scheme() == QLatin1String("data");
    return !isHidden || !m_gate->rules().ownFilesOnly;
}

bool HRUrlGate::allowsFile(const QString &path, DataType type) const
{
    QString module;
    const bool allowed = type == UrlString ? m_gate->mayOpen(path, HRFileUse::picture)
        : type == QmldirFile               ? m_gate->mayImport(path, module)
                                           : m_gate->mayRun(path, module);
    if (!allowed && module.isEmpty())
        m_refuse(kindOf(type), path);
    else if (!allowed)
        m_refuse(QStringLiteral("import"), module);
    return allowed;
}

} // namespace Hintreels
