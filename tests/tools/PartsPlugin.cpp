// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include <Hintreels/HRContext>
#include <Hintreels/HRWidgetsInterface>

#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QMenu>
#include <QSaveFile>
#include <QTimer>

#include <memory>

namespace Hintreels {

namespace {

constexpr int pause = 200; // ms between two looks

/// Where a part is on the screen; null where it is not to be seen.
QRect areaOf(const HRCoveredPart &part)
{
    const QWidget *widget = part.widget;
    if (!widget || widget->visibleRegion().isEmpty())
        return {};
    if (!part.area.isNull() || qobject_cast<const QMenu *>(widget))
        return part.area;
    return { widget->mapToGlobal(QPoint()), widget->size() };
}

QByteArray lines(const HRCoverage &coverage)
{
    QByteArray result;
    for (const HRCoveredPart &part : coverage.withoutHint) {
        const QRect area = areaOf(part);
        for (const QString &key : part.keys)
            result += QStringLiteral("%1 %2 %3 %4 %5\n")
                          .arg(area.x())
                          .arg(area.y())
                          .arg(area.width())
                          .arg(area.height())
                          .arg(key)
                          .toUtf8();
    }
    return result;
}

/// Keeps the file HINTREELS_PARTS: a line for each key of each part of the open windows, with x, y,
/// width and height of the part on the screen, and the key. All are 0 where it is not to be seen.
class PartsReport : public QObject
{
public:
    PartsReport()
    {
        connect(&m_timer, &QTimer::timeout, this, &PartsReport::look);
        m_timer.start(pause);
    }

private:
    void look()
    {
        if (!m_hints && !makeHints())
            return;
        const QByteArray report = lines(m_hints->coverage());
        if (report == m_written || report.isEmpty())
            return;
        QSaveFile file(QFile::decodeName(qgetenv("HINTREELS_PARTS")));
        if (file.open(QIODevice::WriteOnly) && file.write(report) >= 0 && file.commit())
            m_written = report;
    }

    bool makeHints()
    {
        if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
            return false;
        HRContext settings;
        settings.set(applicationFilterKey, false);
        m_hints = std::make_unique<HRWidgetsInterface>(settings, QStringList());
        connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
            m_timer.stop();
            m_hints.reset();
        });
        return true;
    }

    QTimer m_timer;
    std::unique_ptr<HRWidgetsInterface> m_hints; // without any content
    QByteArray m_written;
};

} // namespace

/// Tells another process where the parts of a program are.
class PartsPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "parts.json")

public:
    QObject *create(const QString &, const QString &) override { return new PartsReport; }
};

} // namespace Hintreels

#include "PartsPlugin.moc"
