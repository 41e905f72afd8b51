// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gates/HRFileGate_p.h"

#include <QQmlAbstractUrlInterceptor>

#include <memory>

namespace Hintreels {

/// Puts a URL that nothing is found at in place of each that a scene may not load: QML files,
/// scripts, qmldir files and properties that hold a URL.
///
/// Called by the engine in the GUI thread and in its own.
class HRUrlGate : public QQmlAbstractUrlInterceptor
{
public:
    /// @param refuse told of each file that is refused, in whatever thread; of one of another
    /// machine where it is loaded
    HRUrlGate(std::shared_ptr<const HRFileGate> gate, HRRefuse refuse);

    QUrl intercept(const QUrl &url, DataType type) override;

private:
    QUrl interceptFar(const QUrl &url, DataType type) const;
    bool allows(const QUrl &url, DataType type) const;
    bool allowsFile(const QString &path, DataType type) const;

    std::shared_ptr<const HRFileGate> m_gate;
    HRRefuse m_refuse;
};

} // namespace Hintreels
