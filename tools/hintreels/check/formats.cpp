// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/formats.h"

#include "context/printable_p.h"
#include "hintreels/check/Rule.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace Hintreels {

namespace {

QJsonObject jsonOf(const Finding &finding)
{
    return {
        { QStringLiteral("file"), shownPath(finding.spot.file) },
        { QStringLiteral("line"), finding.spot.line },
        { QStringLiteral("column"), finding.spot.column },
        { QStringLiteral("severity"), severityName(finding.severity) },
        { QStringLiteral("tag"), finding.tag },
        { QStringLiteral("text"), finding.text },
    };
}

QString sarifLevel(Severity severity)
{
    return severity == Severity::hint ? QStringLiteral("note") : severityName(severity);
}

QJsonObject sarifText(const QString &text)
{
    return { { QStringLiteral("text"), text } };
}

QJsonObject sarifRule(const Rule &rule)
{
    const QString help = QLatin1String(rule.why) + u' ' + QLatin1String(rule.mend);
    return {
        { QStringLiteral("id"), QLatin1String(rule.tag) },
        { QStringLiteral("shortDescription"), sarifText(QLatin1String(rule.what)) },
        { QStringLiteral("help"), sarifText(help) },
        { QStringLiteral("defaultConfiguration"),
            QJsonObject{ { QStringLiteral("level"), sarifLevel(rule.severity) } } },
    };
}

/// A path below the current directory becomes a relative reference, as code reviews want it.
QJsonObject sarifPlace(const Spot &spot)
{
    const QString path = shownPath(spot.file);
    const QByteArray start = QDir::isAbsolutePath(path) ? "file://" : "";
    const QJsonObject file{ { QStringLiteral("uri"),
        QString::fromLatin1(start + QUrl::toPercentEncoding(path, "/")) } };
    const QJsonObject region{ { QStringLiteral("startLine"), spot.line },
        { QStringLiteral("startColumn"), spot.column } };
    const QJsonObject place{ { QStringLiteral("artifactLocation"), file },
        { QStringLiteral("region"), region } };
    return { { QStringLiteral("physicalLocation"), place } };
}

QJsonObject sarifResult(const Finding &finding)
{
    return {
        { QStringLiteral("ruleId"), finding.tag },
        { QStringLiteral("level"), sarifLevel(finding.severity) },
        { QStringLiteral("message"), sarifText(finding.text) },
        { QStringLiteral("locations"), QJsonArray{ sarifPlace(finding.spot) } },
    };
}

QJsonObject sarifTool()
{
    QJsonArray rules;
    for (const Rule &rule : allRules())
        rules.append(sarifRule(rule));
    const QJsonObject driver{ { QStringLiteral("name"), QStringLiteral("hintreels check") },
        { QStringLiteral("version"), QStringLiteral(HINTREELS_VERSION) },
        { QStringLiteral("rules"), rules } };
    return { { QStringLiteral("driver"), driver } };
}

} // namespace

QByteArray asText(const QVector<Finding> &findings)
{
    QByteArray text;
    for (const Finding &finding : findings) {
        const QString line = QStringLiteral("%1:%2:%3: %4: %5: ")
                                 .arg(printable(shownPath(finding.spot.file)))
                                 .arg(finding.spot.line)
                                 .arg(finding.spot.column)
                                 .arg(severityName(finding.severity), finding.tag)
            + printable(finding.text);
        text += line.toUtf8() + '\n';
    }
    return text;
}

QByteArray asJson(const QVector<Finding> &findings)
{
    QJsonArray list;
    for (const Finding &finding : findings)
        list.append(jsonOf(finding));
    return QJsonDocument(QJsonObject{ { QStringLiteral("findings"), list } }).toJson();
}

QByteArray asSarif(const QVector<Finding> &findings)
{
    QJsonArray results;
    for (const Finding &finding : findings)
        results.append(sarifResult(finding));
    const QJsonObject run{ { QStringLiteral("tool"), sarifTool() },
        { QStringLiteral("columnKind"), QStringLiteral("utf16CodeUnits") },
        { QStringLiteral("results"), results } };
    const QJsonObject log{ { QStringLiteral("$schema"),
                               QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json") },
        { QStringLiteral("version"), QStringLiteral("2.1.0") },
        { QStringLiteral("runs"), QJsonArray{ run } } };
    return QJsonDocument(log).toJson();
}

Format formatOfName(const QString &name)
{
    static const QMap<QString, Format> formats{ { QStringLiteral("text"), asText },
        { QStringLiteral("json"), asJson }, { QStringLiteral("sarif"), asSarif } };
    return formats.value(name);
}

QString shownPath(const QString &path)
{
    const QString relative = QDir::current().relativeFilePath(path);
    return relative.startsWith(QLatin1String("..")) ? path : relative;
}

QByteArray explanation(const Rule &rule)
{
    const QString example = QLatin1String(rule.example);
    const QString indented
        = QStringLiteral("    ") + QString(example).replace(u'\n', QLatin1String("\n    "));
    return QStringLiteral("## %1\n\n%2 (%3).\n\n%4\n\n%5\n\n%6\n")
        .arg(QLatin1String(rule.tag), QLatin1String(rule.what), severityName(rule.severity),
            QLatin1String(rule.why), QLatin1String(rule.mend), indented)
        .toUtf8();
}

} // namespace Hintreels
