// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/externalResource_p.h"

#include <QUrl>

namespace Hintreels {

HRExternalResourceType externalResourceType(const QString &resource)
{
    const QUrl url(resource, QUrl::StrictMode);
    if (url.isValid() && !url.scheme().isEmpty())
        return resourceUrl;
    return resource.contains(u'/') ? resourcePath : resourceName;
}

bool mayStrangersOpen(const QString &resource)
{
    const HRExternalResourceType type = externalResourceType(resource);
    const QString scheme = QUrl(resource, QUrl::StrictMode).scheme();
    const bool isAddress = scheme == QLatin1String("http") || scheme == QLatin1String("https")
        || scheme == QLatin1String("mailto");
    return type == resourceName || (type == resourceUrl && isAddress);
}

} // namespace Hintreels
