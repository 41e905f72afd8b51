// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "FigureTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <cmath>

namespace {

const QString Heading
    = QStringLiteral("| figure | baseline | ours | value | bar | |\n|---|---|---|---|---|---|\n");

QString digits(double value, int count = 4)
{
    return QString::number(value, 'g', count);
}

/// Where the room is narrow, four digits would hide on which side of a bar a value is.
QString shownValue(const Result &result)
{
    const bool isNarrow = std::isfinite(result.bar.least) && std::isfinite(result.bar.most);
    return digits(result.value, isNarrow ? 6 : 4);
}

QString verdict(const Result &result)
{
    if (!result.failure.isEmpty())
        return QStringLiteral("not measured");
    return result.isGood() ? QString() : QStringLiteral("missed");
}

QString line(const Result &result)
{
    return QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 |\n")
        .arg(result.figure, result.hasBaseline ? shown(result.baseline, result.unit) : QString(),
            shown(result.ours, result.unit), shownValue(result), shown(result.bar),
            verdict(result));
}

/// JSON knows no infinity: an end that is open is left out.
void insertEnd(QJsonObject &object, const char *name, double end)
{
    if (std::isfinite(end))
        object.insert(QLatin1String(name), end);
}

QJsonObject toJson(const Result &result)
{
    QJsonObject object{ { "figure", result.figure }, { "unit", int(result.unit) },
        { "ours", result.ours }, { "value", result.value }, { "failure", result.failure } };
    if (result.hasBaseline)
        object.insert("baseline", result.baseline);
    insertEnd(object, "least", result.bar.least);
    insertEnd(object, "most", result.bar.most);
    return object;
}

Result fromJson(const QJsonObject &object)
{
    constexpr double Open = std::numeric_limits<double>::infinity();
    constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
    return { object["figure"].toString(), Unit(object["unit"].toInt()), object.contains("baseline"),
        object["baseline"].toDouble(), object["ours"].toDouble(),
        object["value"].toDouble(NoNumber),
        { object["least"].toDouble(-Open), object["most"].toDouble(Open) },
        object["failure"].toString() };
}

} // namespace

double Bar::share(double value) const
{
    if (std::isinf(most))
        return least / value;
    if (std::isinf(least))
        return value / most;
    const double middle = (least + most) / 2;
    return std::abs(value - middle) / (most - middle);
}

QString FigureTable::markdown() const
{
    QString table = Heading;
    for (const Result &result : m_results)
        table += line(result);
    return table;
}

QStringList FigureTable::faults() const
{
    if (m_results.isEmpty())
        return { QStringLiteral("nothing was measured") };
    QStringList faults;
    for (const Result &result : m_results) {
        if (!result.failure.isEmpty())
            faults += QStringLiteral("not measured: %1: %2").arg(result.figure, result.failure);
        else if (!result.isGood())
            faults += QStringLiteral("missed: %1: %2 where %3 is good")
                          .arg(result.figure, shownValue(result), shown(result.bar));
    }
    return faults;
}

QByteArray FigureTable::json() const
{
    QJsonArray array;
    for (const Result &result : m_results)
        array.append(toJson(result));
    return QJsonDocument(array).toJson();
}

FigureTable FigureTable::fromJson(const QByteArray &json)
{
    FigureTable table;
    for (const QJsonValue value : QJsonDocument::fromJson(json).array())
        table.add(::fromJson(value.toObject()));
    return table;
}

QString shown(double value, Unit unit)
{
    switch (unit) {
    case Unit::seconds:
        return value < 1 ? digits(value * 1e3) + " ms" : digits(value) + " s";
    case Unit::bytes:
        return digits(value / 1e6) + " MB";
    case Unit::none:
        break;
    }
    return digits(value);
}

QString shown(const Bar &bar)
{
    if (std::isinf(bar.most))
        return ">= " + digits(bar.least);
    if (std::isinf(bar.least))
        return "<= " + digits(bar.most);
    return digits(bar.least) + " to " + digits(bar.most, 5);
}
