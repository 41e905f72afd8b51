// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "x11/StrangeProgram.h"

#include "x11/RealInput.h"

#include <QtTest>

namespace {

constexpr int longTime = 60000; // ms: other programs may keep the processor busy

struct ReportedPart
{
    QString key;
    QRect area;
};

QVector<ReportedPart> readParts(const QString &path)
{
    QVector<ReportedPart> parts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return parts;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        const QStringList words = line.split(' ');
        const QRect area(words.value(0).toInt(), words.value(1).toInt(), words.value(2).toInt(),
            words.value(3).toInt());
        parts.append({ line.section(' ', 4), area });
    }
    return parts;
}

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(longTime);
    return process.readAllStandardOutput();
}

/// The area of a window of the X server; null where it has gone meanwhile.
QRect areaOfWindow(const QByteArray &id)
{
    const QByteArray geometry
        = outputOf("xdotool", { "getwindowgeometry", "--shell", QString::fromLatin1(id) });
    QMap<QByteArray, int> values;
    for (const QByteArray &line : geometry.split('\n'))
        values[line.left(line.indexOf('='))] = line.mid(line.indexOf('=') + 1).toInt();
    return { values["X"], values["Y"], values["WIDTH"], values["HEIGHT"] };
}

} // namespace

StrangeProgram::StrangeProgram(const QString &packages, const QString &windowClass,
    const QStringList &programAndArguments, const QString &language)
    : m_windowClass(windowClass)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", m_home.path());
    environment.insert("XDG_CONFIG_HOME", m_home.path());
    environment.insert("LC_ALL", language);
    environment.insert("QT_PLUGIN_PATH", PARTS_PLUGINS);
    environment.insert("QT_QPA_GENERIC_PLUGINS", "hintreels-parts");
    environment.insert("HINTREELS_PARTS", m_home.filePath("parts"));
    m_process.setProcessEnvironment(environment);
    m_process.start(HINTREELS_COMMAND,
        QStringList{ "run", "--packages", packages, "--" } + programAndArguments);
}

StrangeProgram::~StrangeProgram()
{
    m_process.terminate();
    if (!m_process.waitForFinished(longTime))
        m_process.kill();
    m_process.waitForFinished();
}

QStringList StrangeProgram::keys() const
{
    QStringList keys;
    [[maybe_unused]] const bool isReady
        = QTest::qWaitFor([&] { return QFile::exists(m_home.filePath("parts")); }, longTime);
    for (const ReportedPart &part : readParts(m_home.filePath("parts")))
        keys.append(part.key);
    return keys;
}

QRect StrangeProgram::hover(const QString &key) const
{
    QRect hint;
    // A window that still looks for its place moves away from under the pointer.
    for (int attempt = 0; attempt < 6 && hint.isNull(); ++attempt) {
        const QRect part = areaOf(key);
        if (part.isNull())
            break;
        RealInput::movePointer(part.center());
        const auto shows = [&] { return !(hint = hintBeside(part)).isNull(); };
        [[maybe_unused]] const bool shown = QTest::qWaitFor(shows, longTime / 6);
    }
    return hint;
}

bool StrangeProgram::openMenu(const QString &key) const
{
    const auto isOpen = [this] { return !openPopups().isEmpty(); };
    for (int attempt = 0; attempt < 6 && !isOpen(); ++attempt) {
        const QRect area = areaOf(key);
        if (area.isNull())
            break;
        RealInput::click(area.center());
        [[maybe_unused]] const bool opened = QTest::qWaitFor(isOpen, longTime / 6);
    }
    return isOpen();
}

QRect StrangeProgram::areaOf(const QString &key) const
{
    QRect area;
    const auto isThere = [&] {
        for (const ReportedPart &part : readParts(m_home.filePath("parts"))) {
            if (part.key == key && !part.area.isEmpty())
                area = part.area;
        }
        return !area.isNull();
    };
    return QTest::qWaitFor(isThere, longTime) ? area : QRect();
}

QList<QRect> StrangeProgram::openPopups() const
{
    QList<QRect> areas;
    const QByteArray ids = outputOf("xdotool",
        { "search", "--maxdepth", "1", "--onlyvisible", "--class", "^" + m_windowClass + "$" });
    for (const QByteArray &id : ids.split('\n')) {
        const QRect area = id.isEmpty() ? QRect() : areaOfWindow(id);
        if (!area.isEmpty())
            areas.append(area);
    }
    return areas;
}

QByteArray StrangeProgram::messages()
{
    QByteArray messages;
    for (const QByteArray &line : m_process.readAllStandardError().split('\n')) {
        if (line.startsWith("hintreels: "))
            messages += line;
    }
    return messages;
}

/// A menu lies around its entries, a hint beside its part, and a tooltip of Qt's has few lines.
QRect StrangeProgram::hintBeside(const QRect &part) const
{
    constexpr int highestToolTip = 60;
    for (const QRect &popup : openPopups()) {
        if (!popup.contains(part) && popup.height() > highestToolTip)
            return popup;
    }
    return {};
}
