// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestPackage.h"
#include "support/WatchedPipe.h"
#include "ui/reader/pictureFile_p.h"

#include <QBuffer>
#include <QImage>
#include <QtTest>

#include <zlib.h>

using namespace Hintreels;

namespace {

QByteArray png(const QSize &size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray svg(const QByteArray &content, const QByteArray &before = {})
{
    return "<?xml version=\"1.0\"?>" + before
        + "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
          "width=\"20\" height=\"10\">"
        + content + "</svg>";
}

QByteArray packed(const QByteArray &content)
{
    const TestPackages files;
    const QByteArray path = (files.path() + "/packed").toUtf8();
    gzFile file = gzopen(path.constData(), "wb9");
    gzwrite(file, content.constData(), unsigned(content.size()));
    gzclose(file);
    QFile result(path);
    return result.open(QIODevice::ReadOnly) ? result.readAll() : QByteArray();
}

/// A part that copies the one before it ten times, @p depth times over.
QByteArray copiesOfCopies(int depth)
{
    QByteArray parts = "<rect id=\"p0\" width=\"1\" height=\"1\"/>";
    for (int i = 1; i <= depth; ++i) {
        const QByteArray use = "<use xlink:href=\"#p" + QByteArray::number(i - 1) + "\"/>";
        parts += "<g id=\"p" + QByteArray::number(i) + "\">" + use.repeated(10) + "</g>";
    }
    return parts;
}

} // namespace

class tst_pictureFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictureSize_isThatOfAPicture_data();
    void pictureSize_isThatOfAPicture();
    void pictureSize_opensOrdinaryFilesOnly_data();
    void pictureSize_opensOrdinaryFilesOnly();
    void pictureSize_opensNothingElse_forADrawing_data();
    void pictureSize_opensNothingElse_forADrawing();
};

void tst_pictureFile::pictureSize_isThatOfAPicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("shown");

    const QByteArray line = "<line x2=\"9\" y2=\"9\" stroke=\"red\"/>";
    const QByteArray megabyte(1024 * 1024, ' ');
    const QByteArray entities = "<!DOCTYPE svg [<!ENTITY a \"<g/>\">]>";
    const QByteArray type = "<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" "
                            "\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">";
    QTest::newRow("picture") << "a.png" << png({ 20, 10 }) << true;
    QTest::newRow("more pixels than are shown")
        << "a.ppm" << QByteArray("P6\n10000 10000\n255\n") << false;
    QTest::newRow("drawing") << "a.svg" << svg(line) << true;
    QTest::newRow("packed drawing") << "a.svgz" << packed(svg(line)) << true;
    QTest::newRow("drawing of a document type") << "a.svg" << svg(line, type) << true;
    QTest::newRow("drawing with a comment") << "a.svg" << svg(line, "<!-- a -->") << true;
    QTest::newRow("drawing with copies") << "a.svg" << svg(copiesOfCopies(1)) << true;
    QTest::newRow("drawing of much") << "a.svg" << svg(line.repeated(50'000)) << true;
    QTest::newRow("drawing with entities") << "a.svg" << svg("&a;", entities) << false;
    QTest::newRow("drawing with entities, named a picture")
        << "a.png" << svg("&a;", entities) << false;
    QTest::newRow("packed drawing with entities")
        << "a.svgz" << packed(svg("&a;", entities)) << false;
    QTest::newRow("drawing above 8 MB") << "a.svg" << svg(megabyte.repeated(8)) << false;
    QTest::newRow("drawing of 8 MB packed")
        << "a.svgz" << packed(svg(megabyte.repeated(7))) << true;
    QTest::newRow("drawing above 8 MB, packed")
        << "a.svgz" << packed(svg(megabyte.repeated(8))) << false;
    QTest::newRow("half a packed drawing") << "a.svgz" << packed(svg(line)).left(100) << false;
    QTest::newRow("copies of copies") << "a.svg" << svg(copiesOfCopies(2)) << false;
    QTest::newRow("copy of itself")
        << "a.svg" << svg("<g id=\"a\"><use xlink:href=\"#a\"/></g>") << false;
    QTest::newRow("too many copies") << "a.svg"
                                     << svg("<g id=\"a\">" + line.repeated(1000) + "</g>"
                                            + QByteArray("<use xlink:href=\"#a\"/>").repeated(100))
                                     << false;
    QTest::newRow("too many elements")
        << "a.svg" << svg(QByteArray("<g/>").repeated(100'000)) << false;
    const QByteArray rules = QByteArray(".a{fill:red}").repeated(1'000);
    QTest::newRow("style sheet of few elements")
        << "a.svg" << svg("<style>" + rules + "</style>" + line.repeated(1'000)) << true;
    QTest::newRow("style sheet of many elements")
        << "a.svg" << svg("<style>" + rules + "</style>" + line.repeated(10'000)) << false;
    QTest::newRow("style sheet in pieces") << "a.svg"
                                           << svg("<style><![CDATA[" + rules + "]]><a>" + rules
                                                  + "</a></style>" + line.repeated(5'000))
                                           << false;
    QTest::newRow("nested deep") << "a.svg"
                                 << svg(QByteArray("<g>").repeated(300)
                                        + QByteArray("</g>").repeated(300))
                                 << false;
}

void tst_pictureFile::pictureSize_isThatOfAPicture()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(bool, shown);
    const TestPackages files;

    QCOMPARE(pictureSize(files.write(name, content)), shown ? QSize(20, 10) : QSize());
}

void tst_pictureFile::pictureSize_opensOrdinaryFilesOnly_data()
{
    QTest::addColumn<QString>("target");

    QTest::newRow("file of the kernel") << "/proc/kmsg";
    QTest::newRow("file of the kernel that can be read") << "/proc/self/maps";
    QTest::newRow("device") << "/dev/zero";
    QTest::newRow("folder") << "/tmp";
}

void tst_pictureFile::pictureSize_opensOrdinaryFilesOnly()
{
    QFETCH(QString, target);
    const TestPackages files;
    for (const char *name : { "/a.png", "/a.svg" }) {
        const QString link = files.path() + name;
        QVERIFY(QFile::link(target, link));
        QCOMPARE(pictureSize(link), QSize());
    }
    const WatchedPipe pipe(files.path() + "/pipe.png");
    QCOMPARE(pictureSize(files.path() + "/pipe.png"), QSize());
    QVERIFY(!pipe.wasOpened());
}

void tst_pictureFile::pictureSize_opensNothingElse_forADrawing_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("picture in it") << svg("<image xlink:href=\"PIPE\" width=\"9\" height=\"9\"/>");
    QTest::newRow("picture in it, of another space")
        << svg("<a:image xmlns:a=\"urn:a\" xlink:href=\"PIPE\" width=\"9\" height=\"9\"/>");
    QTest::newRow("style sheet") << svg(
        "<g/>", "<?xml-stylesheet type=\"text/css\" href=\"PIPE\"?>");
}

void tst_pictureFile::pictureSize_opensNothingElse_forADrawing()
{
    QFETCH(QByteArray, content);
    const TestPackages files;
    const QString path = files.path() + "/pipe";
    const WatchedPipe pipe(path);

    QCOMPARE(pictureSize(files.write("a.svg", content.replace("PIPE", path.toUtf8()))), QSize());

    QVERIFY(!pipe.wasOpened());
}

QTEST_MAIN(tst_pictureFile)
#include "tst_pictureFile.moc"
