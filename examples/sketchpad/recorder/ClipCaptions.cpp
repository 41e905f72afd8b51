// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipCaptions.h"

#include <QStringList>
#include <QTime>

namespace Sketchpad {

namespace {

QString timestamp(double seconds)
{
    return QTime(0, 0).addMSecs(qRound(1000 * seconds)).toString("hh:mm:ss.zzz");
}

} // namespace

void ClipCaptions::say(const QString &locale, const QString &text, double seconds)
{
    m_captions[locale].append({ seconds, text });
}

QByteArray ClipCaptions::toWebVtt(const QString &locale, double clipSeconds) const
{
    const QVector<Caption> captions = m_captions.value(locale);
    QString file = "WEBVTT\n";
    for (int i = 0; i < captions.size(); ++i) {
        const double end = i + 1 < captions.size() ? captions[i + 1].begin : clipSeconds;
        file += QString("\n%1 --> %2\n%3\n")
                    .arg(timestamp(captions[i].begin), timestamp(end), captions[i].text);
    }
    return file.toUtf8();
}

} // namespace Sketchpad
