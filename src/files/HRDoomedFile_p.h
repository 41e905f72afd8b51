// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"

#include <QByteArray>
#include <QString>

namespace Hintreels {

/// A file that is to be deleted. It is kept hold of, so that no other is taken for it.
///
/// To be made while the file is open elsewhere in this process; before then, another one could
/// have been given its number.
class HRDoomedFile
{
public:
    /// @param stamp of the file; one that has taken its place since is left alone
    HRDoomedFile(const QString &path, const HRFileStamp &stamp);
    ~HRDoomedFile();
    Q_DISABLE_COPY(HRDoomedFile)

    /// Deletes the file, unless another has taken its place. Waits for whoever does the same, in
    /// this process or another.
    void remove();

private:
    QByteArray m_path;
    int m_descriptor = -1;
};

} // namespace Hintreels
