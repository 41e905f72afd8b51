// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gates/HRFileGate_p.h"

#include <QNetworkAccessManager>
#include <QQmlNetworkAccessManagerFactory>

#include <memory>

namespace Hintreels {

/// A URL that nothing is found at, in place of one that is refused, and which still tells it.
QUrl refusedUrl(const QUrl &url);

/// A URL in place of one of another machine, for a property to hold. Who loads it asks the network
/// for it, and is refused there.
QUrl farUrl(const QUrl &url);

/// The URL that was refused, or the text itself where none was.
QString withoutRefusal(const QString &text);

/// Whether data comes from another machine, or from who knows where.
bool isRemote(const QUrl &url);

/// Answers a scene's requests with files, Qt's resources and data URLs, for reading only; unless
/// the settings allow the network, all else is not found. Files are never written.
class HRNetworkAccess : public QNetworkAccessManager
{
public:
    /// @param refuse told of what is refused, in the thread of the request
    HRNetworkAccess(std::shared_ptr<const HRFileGate> gate, HRRefuse refuse, QObject *parent);

protected:
    QNetworkReply *createRequest(
        Operation operation, const QNetworkRequest &request, QIODevice *data) override;

private:
    bool isAllowed(Operation operation, const QUrl &url) const;

    std::shared_ptr<const HRFileGate> m_gate;
    HRRefuse m_refuse;
};

/// Makes one for each thread of the QML engine that loads something.
class HRNetworkAccessFactory : public QQmlNetworkAccessManagerFactory
{
public:
    HRNetworkAccessFactory(std::shared_ptr<const HRFileGate> gate, HRRefuse refuse);

    QNetworkAccessManager *create(QObject *parent) override;

private:
    std::shared_ptr<const HRFileGate> m_gate;
    HRRefuse m_refuse;
};

} // namespace Hintreels
