// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "tools/check/GoodPackage.h"

#include "support/TestClip.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

QByteArray goodControlFile()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<hintreels locale="en_US"
    search="Standard">
  <hintreel key="toolPen" title="Pen" shortcut="P" documentation="tools/pen" covers="inside">
    <summary>Draws a free line.</summary>
    <text><![CDATA[Press, *drag* and <release>.]]></text>
    <video source="pen.mp4" alt="A line" loop="true" width="64"/>
    <keys press="Shift+Drag">Draws a straight line.</keys>
    <picture source="pictures/pen.png" alt="A line" width="8">Before &amp; after.</picture>
    <note kind="tip">Größe</note>
    <link to="https://example.org">More</link>
  </hintreel>
  <hintreel key="editUndo" title="Undo">
    <summary>Takes back the last change.</summary>
  </hintreel>
</hintreels>
)";
}

namespace {

QByteArray picture()
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QImage(8, 8, QImage::Format_RGB32).save(&file, "PNG");
    return file.data();
}

QByteArray clip()
{
    static const QByteArray bytes = [] {
        QTemporaryDir directory;
        QFile file(TestClip().write(directory.filePath("pen.mp4")));
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }();
    return bytes;
}

} // namespace

GoodPackage::GoodPackage()
{
    write("Control/en_US.xml", goodControlFile());
    write("Control/de_DE.xml", goodControlFile().replace("en_US", "de_DE"));
    write("Resources/pictures/pen.png", picture());
    write("Resources/pen.mp4", clip());
    write("Resources/pen.vtt", "WEBVTT\n\n00:00.000 --> 00:00.500\nPress.\n");
}

void GoodPackage::write(const QString &path, const QByteArray &content) const
{
    m_packages.write("Painter.hintreels/" + path, content);
}

void GoodPackage::replace(const QByteArray &text, const QByteArray &by) const
{
    const QByteArray good = goodControlFile();
    if (good.count(text) != 1)
        qFatal("the good file has \"%s\" %d times", text.constData(), int(good.count(text)));
    write("Control/en_US.xml", QByteArray(good).replace(text, by));
}
