// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipCaptions.h"

#include <QtTest>

using namespace Sketchpad;

class tst_ClipCaptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toWebVtt_endsEachCaption_whereTheNextBegins();
    void locales_areThoseThatSaidSomething();
};

void tst_ClipCaptions::toWebVtt_endsEachCaption_whereTheNextBegins()
{
    ClipCaptions captions;
    captions.say("de_DE", "Drücken.", 0);
    captions.say("en_US", "Press.", 0.25);
    captions.say("de_DE", "Loslassen.", 61.5);
    QCOMPARE(QString::fromUtf8(captions.toWebVtt("de_DE", 70)),
        QString("WEBVTT\n"
                "\n00:00:00.000 --> 00:01:01.500\nDrücken.\n"
                "\n00:01:01.500 --> 00:01:10.000\nLoslassen.\n"));
    QCOMPARE(QString::fromUtf8(captions.toWebVtt("en_US", 70)),
        QString("WEBVTT\n\n00:00:00.250 --> 00:01:10.000\nPress.\n"));
}

void tst_ClipCaptions::locales_areThoseThatSaidSomething()
{
    ClipCaptions captions;
    QVERIFY(captions.locales().isEmpty());
    captions.say("en_US", "Press.", 0);
    captions.say("de_DE", "Drücken.", 0);
    captions.say("en_US", "Release.", 1);
    QCOMPARE(captions.locales(), QStringList({ "de_DE", "en_US" }));
}

QTEST_APPLESS_MAIN(tst_ClipCaptions)

#include "tst_ClipCaptions.moc"
