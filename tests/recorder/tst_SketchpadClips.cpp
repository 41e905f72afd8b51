// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipScript.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

using namespace Sketchpad;

/// Looks at the recorded clips: each is as short and small as a hint wants it, and says what its
/// script says.
class tst_SketchpadClips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clip_isShortAndSmall_data();
    void clip_isShortAndSmall();
    void captions_sayWhatTheScriptSays_data();
    void captions_sayWhatTheScriptSays();
    void clips_areThoseOfTheTools();
};

namespace {

const QString scripts = QStringLiteral(SKETCHPAD_DIRECTORY) + "/clips";
const QString resources = QStringLiteral(SKETCHPAD_DIRECTORY) + "/Sketchpad.hintreels/Resources";
const QStringList locales = { "en_US", "de_DE" };

const int widest = 480;
const int largest = 150000; // bytes
const int longestCaption = 40; // fits one line of a hint

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void addClips()
{
    QTest::addColumn<QString>("name");
    const auto files = QDir(scripts).entryInfoList({ "*.clip" });
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.baseName())) << file.baseName();
}

struct CloseClip
{
    void operator()(AVFormatContext *clip) const { avformat_close_input(&clip); }
};
using Clip = std::unique_ptr<AVFormatContext, CloseClip>;

Clip openClip(const QString &path)
{
    AVFormatContext *clip = nullptr;
    if (avformat_open_input(&clip, QFile::encodeName(path).constData(), nullptr, nullptr) < 0)
        return nullptr;
    Clip opened(clip);
    return avformat_find_stream_info(clip, nullptr) < 0 ? nullptr : std::move(opened);
}

/// What a script says in a language, in its order.
QStringList saidInScript(const QString &name, const QString &locale)
{
    QStringList said;
    const ClipScript script = ClipScript::fromText(contentOf(scripts + '/' + name + ".clip"));
    for (const ClipStep &step : script.steps()) {
        if (step.action == ClipAction::Say && step.name == locale)
            said.append(step.text);
    }
    return said;
}

/// The texts of a caption file, without its times.
QStringList saidInCaptions(const QString &name, const QString &locale)
{
    QStringList said;
    const QString captions = contentOf(resources + '/' + name + '.' + locale + ".vtt");
    for (const QString &cue : captions.split("\n\n").mid(1))
        said.append(cue.section('\n', 1, 1));
    return said;
}

} // namespace

void tst_SketchpadClips::clip_isShortAndSmall_data()
{
    addClips();
}

void tst_SketchpadClips::clip_isShortAndSmall()
{
    QFETCH(QString, name);
    const QString path = resources + '/' + name + ".mp4";
    QVERIFY(QFileInfo(path).size() <= largest);
    const Clip clip = openClip(path);
    QVERIFY2(clip, qPrintable(path));
    QCOMPARE(clip->nb_streams, 1u);
    const AVStream *stream = clip->streams[0];
    QCOMPARE(stream->codecpar->codec_id, AV_CODEC_ID_H264);
    QVERIFY(stream->codecpar->width <= widest);
    QCOMPARE(av_cmp_q(stream->r_frame_rate, stream->avg_frame_rate), 0);
    const double seconds = double(clip->duration) / AV_TIME_BASE;
    QVERIFY2(seconds >= 4 && seconds <= 12, qPrintable(QString::number(seconds)));
    QCOMPARE(qRound(seconds * av_q2d(stream->avg_frame_rate)), int(stream->nb_frames));
}

void tst_SketchpadClips::captions_sayWhatTheScriptSays_data()
{
    addClips();
}

void tst_SketchpadClips::captions_sayWhatTheScriptSays()
{
    QFETCH(QString, name);
    for (const QString &locale : locales) {
        QVERIFY(!saidInScript(name, locale).isEmpty());
        QCOMPARE(saidInCaptions(name, locale), saidInScript(name, locale));
        for (const QString &said : saidInScript(name, locale))
            QVERIFY2(said.size() <= longestCaption, qPrintable(said));
    }
}

void tst_SketchpadClips::clips_areThoseOfTheTools()
{
    QStringList names;
    const auto clips = QDir(resources).entryInfoList({ "*.mp4" }, QDir::Files, QDir::Name);
    for (const QFileInfo &clip : clips)
        names.append(clip.completeBaseName());
    QCOMPARE(names,
        QStringList(
            { "ellipse", "eraser", "fill", "line", "pen", "rectangle", "select", "text", "zoom" }));
}

QTEST_APPLESS_MAIN(tst_SketchpadClips)

#include "tst_SketchpadClips.moc"
