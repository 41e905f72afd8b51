// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRExternalResource_p.h"

#include <QUrl>

namespace Hintreels {

HRExternalResourceType externalResourceType(const QString &resource)
{
    const QUrl url(resource, QUrl::StrictMode);
    if (url.isValid() && !url.scheme().isEmpty())
        return resourceUrl;
    return resource.contains('/') ? resourcePath : resourceName;
}

} // namespace Hintreels
