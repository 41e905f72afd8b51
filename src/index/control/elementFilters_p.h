// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QXmlAttributes;

namespace Hintreels {

// Filters for HRXmlParser, which answer as it describes. Names are compared case-sensitively.

/// Makes the roots and entries of a control file, without what is in the entries; @p data is not
/// used.
int generateIndexElement(const QString &tag, const QXmlAttributes &attributes, void *data);

/// Makes the root of a control file and the whole entry of one key; @p key points to its QString.
int generateContentElement(const QString &tag, const QXmlAttributes &attributes, void *key);

/// Makes the root of a key-data file and the whole element of one key; @p key points to its
/// QString.
int generateKeyDataElement(const QString &tag, const QXmlAttributes &attributes, void *key);

} // namespace Hintreels
