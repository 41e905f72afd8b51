// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// Runs the recorder as the command does, with scripts that tests write.
class tst_ClipRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void record_makesTheClipAndItsCaptions();
    void record_fails_data();
    void record_fails();
};

namespace {

struct Recording
{
    int exitCode = -1;
    QString errors;
};

Recording record(const QTemporaryDir &directory, const QByteArray &script)
{
    QFile file(directory.filePath("clip.clip"));
    if (!file.open(QIODevice::WriteOnly) || file.write(script) != script.size())
        return {};
    file.close();
    QProcess recorder;
    recorder.start(CLIP_RECORDER, { file.fileName(), directory.path() });
    if (!recorder.waitForFinished())
        return {};
    return { recorder.exitCode(), QString::fromLocal8Bit(recorder.readAllStandardError()) };
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_ClipRecorder::record_makesTheClipAndItsCaptions()
{
    const QTemporaryDir directory;
    const Recording recording = record(directory,
        "key P\ndrag 20 20 40 40\nrecord\nsay en_US Look.\nwait 0.5\nmove toolSelect\nclick\n"
        "key Ctrl+Z\nsay de_DE Zurück.\nwait 0.5\n");
    QVERIFY2(recording.exitCode == 0, qPrintable(recording.errors));
    QVERIFY(contentOf(directory.filePath("clip.mp4")).size() > 1000);
    const QString english = contentOf(directory.filePath("clip.en_US.vtt"));
    QVERIFY(english.startsWith("WEBVTT\n\n00:00:00.000 --> 00:00:0"));
    QVERIFY(english.endsWith("\nLook.\n"));
    QVERIFY(contentOf(directory.filePath("clip.de_DE.vtt")).contains("\nZurück.\n"));
}

void tst_ClipRecorder::record_fails_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("message");

    QTest::newRow("unknown step") << QByteArray("record\nfly") << "line 2: cannot understand";
    QTest::newRow("unknown target") << QByteArray("move toolSaw") << "line 1: cannot be played";
    QTest::newRow("unknown key") << QByteArray("record\nhold Meta") << "line 2: cannot be played";
    QTest::newRow("unknown color")
        << QByteArray("color fillColor blu") << "line 1: cannot be played";
}

void tst_ClipRecorder::record_fails()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, message);
    const QTemporaryDir directory;
    const Recording recording = record(directory, script);
    QCOMPARE(recording.exitCode, 1);
    QVERIFY2(recording.errors.contains(message), qPrintable(recording.errors));
}

QTEST_GUILESS_MAIN(tst_ClipRecorder)

#include "tst_ClipRecorder.moc"
