// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QString>

#include <functional>

class HRContext;

namespace Hintreels {

class HRIndex;
class HRXmlElement;

/// The content found for a key; whoever takes it owns the tree until it is handed on.
struct HRFoundContent
{
    HRXmlElement *element = nullptr;
    HRXmlElement *root = nullptr; ///< top of the element's tree
    QString path; ///< directory of the control file
    int depth = 0; ///< levels from the package directory down to the control file

    explicit operator bool() const { return element && root; }

    /// The package directory, canonical; a control file directly in it has the depth 1.
    QString packageDirectory() const;

    /// Clears the root where there is no element: an index may leave the address of what it has
    /// deleted.
    void forgetStrayRoot();

    /// Frees the tree: with the element's parent where it has one, else the element.
    void discard();
};

/// Looks content up, first for the primary locale, then for the fallback locale.
///
/// What it borrows must outlive it. GUI thread only.
class HRContentLookup
{
public:
    using Report = std::function<void(const QString &progress)>;

    HRContentLookup(const HRContext &context, HRIndex &index, Report report);

    /// A key's element in the first locale that has it; reports how long that took.
    ///
    /// The rest is the index's: what it has written stays, on a miss too, and nothing else is.
    HRXmlElement *retrieve(
        const QString &key, QString &path, int &depth, HRXmlElement *&root) const;

    /// The same as a record, which is safe to look at on a miss.
    HRFoundContent find(const QString &key) const;

    /// The fallback key's content, which is looked for in the fallback locale only.
    HRFoundContent findFallback() const;

    /// The key to show where another has no content; null where the host sets none.
    QString fallbackKey() const;

private:
    QLocale fallbackLocale() const;

    const HRContext &m_context;
    HRIndex &m_index;
    Report m_report;
};

} // namespace Hintreels
