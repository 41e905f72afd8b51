// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSet>
#include <QSize>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace Hintreels {

/// Measures the pictures or clips of a hint in a thread, so that no file can hold up the GUI.
///
/// Most files are measured in a millisecond or two: the GUI waits as long for them, that the hint
/// has its size at once. Once it has waited for 40 ms altogether, it waits for nothing more of this
/// hint, and is told later. GUI thread only.
class HRMeasuring : public QObject
{
    Q_OBJECT

public:
    /// Measures a file in a thread, and gives up soon after @p shouldStop has become true.
    using Measure
        = std::function<QSize(const QString &path, const std::function<bool()> &shouldStop)>;

    explicit HRMeasuring(Measure measure, QObject *parent = nullptr);

    /// Waits for the file that is just being measured.
    ~HRMeasuring() override;

    /// The size of a file; empty where it has none, or is not measured yet.
    QSize size(const QString &path);

    /// Begins anew, for another hint: each file is measured again, since it may have changed.
    void forget();

Q_SIGNALS:
    /// Sizes are known that were asked for too early.
    void measured();

private:
    struct Answers;

    void start(const QString &path);
    void awaitLocked(const QString &path);

    Measure m_measure;
    std::unique_ptr<Answers> m_answers;
    QSet<QString> m_asked;
    qint64 m_patience; // ns that may still be waited for this hint
    QThreadPool m_threads;
};

} // namespace Hintreels
