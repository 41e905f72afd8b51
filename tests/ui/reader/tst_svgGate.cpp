// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestPackage.h"
#include "ui/reader/svgGate_p.h"

#include <QtTest>

#include <zlib.h>

using namespace Hintreels;

namespace {

constexpr int largest = 8 * 1024 * 1024;

QByteArray svg(const QByteArray &content)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\">"
        + content + "</svg>";
}

QByteArray nested(int depth)
{
    return QByteArray("<g>").repeated(depth) + QByteArray("</g>").repeated(depth);
}

QByteArray elements(int count)
{
    return QByteArray("<g/>").repeated(count);
}

QByteArray sheet(int letters)
{
    return "<style>" + QByteArray(letters, 's') + "</style>";
}

/// A part of so many steps, its own included, and copies of it.
QByteArray copiedPart(int steps, int copies)
{
    return "<g id=\"part\">" + elements(steps - 1) + "</g>"
        + QByteArray("<use xlink:href=\"#part\"/>").repeated(copies);
}

QByteArray packed(const QByteArray &content)
{
    const TestPackages files;
    const QByteArray path = (files.path() + "/packed").toUtf8();
    gzFile file = gzopen(path.constData(), "wb1");
    gzwrite(file, content.constData(), unsigned(content.size()));
    gzclose(file);
    QFile result(path);
    return result.open(QIODevice::ReadOnly) ? result.readAll() : QByteArray();
}

} // namespace

class tst_svgGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isHarmlessSvg_boundsDrawing_data();
    void isHarmlessSvg_boundsDrawing();
    void isHarmlessSvg_refusesWhatReachesOut_data();
    void isHarmlessSvg_refusesWhatReachesOut();
    void readSvg_readsUpTo8MB_data();
    void readSvg_readsUpTo8MB();
    void readSvg_returnsNull_whenThereIsNoFile();
};

void tst_svgGate::isHarmlessSvg_boundsDrawing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("harmless");
    const QByteArray use = "<use xlink:href=\"#part\"/>";
    QTest::newRow("nothing") << QByteArray() << true;
    QTest::newRow("250 deep with the root") << nested(249) << true;
    QTest::newRow("251 deep") << nested(250) << false;
    QTest::newRow("deep twice, one after the other") << nested(249) + nested(249) << true;
    QTest::newRow("100,000 elements with the root") << elements(99'999) << true;
    QTest::newRow("100,001 elements") << elements(100'000) << false;
    // The root, the part, its copies, and what they copy: 1 + 1,000 + 98 + 98,000, and the rest.
    QTest::newRow("100,000 steps with copies") << copiedPart(1000, 98) + elements(901) << true;
    QTest::newRow("100,001 steps with copies") << copiedPart(1000, 98) + elements(902) << false;
    QTest::newRow("a copy of a part in a part") << "<g><g><g id=\"part\"/></g></g>" + use << true;
    QTest::newRow("a copy before its part") << use + copiedPart(50'000, 1) << false;
    QTest::newRow("a copy of a part that holds one")
        << "<g id=\"a\"/><g id=\"part\"><use xlink:href=\"#a\"/></g>" + use << false;
    QTest::newRow("a copy of a part that holds one deep below")
        << "<g id=\"a\"/><g id=\"part\"><g><use xlink:href=\"#a\"/></g><g/></g>" + use << false;
    QTest::newRow("a copy of a copy")
        << "<g id=\"a\"/><use id=\"part\" xlink:href=\"#a\"/>" + use << false;
    QTest::newRow("a copy of itself")
        << QByteArray("<g id=\"part\"><use xlink:href=\"#part\"/></g>") << false;
    QTest::newRow("a part beside one that holds a copy")
        << "<g><use xlink:href=\"#part\"/></g><g id=\"part\"/>" + use << true;
    QTest::newRow("a copy of nothing") << use << true;
    QTest::newRow("100,000 steps with a copy of nothing") << use + elements(99'998) << true;
    QTest::newRow("100,001 steps with a copy of nothing") << use + elements(99'999) << false;
    QTest::newRow("a copy by the name of a file")
        << copiedPart(50'000, 0) + QByteArray("<use xlink:href=\"a.svg#part\"/>").repeated(2)
        << false;
    // Letters of style, by 1,000 elements with the root and the sheet, by levels.
    QTest::newRow("200,000,000 of style") << sheet(100'000) + elements(998) << true;
    QTest::newRow("a letter more of style") << sheet(100'001) + elements(998) << false;
    QTest::newRow("an element more of style") << sheet(100'000) + elements(999) << false;
    QTest::newRow("199,998,000 of style on three levels")
        << sheet(66'666) + elements(996) + nested(2) << true;
    QTest::newRow("a level more of style") << sheet(66'667) + elements(996) + nested(2) << false;
    QTest::newRow("two sheets") << sheet(50'000) + sheet(50'001) + elements(997) << false;
    QTest::newRow("style inside of style")
        << "<style><g>" + QByteArray(70'000, 's') + "</g></style>" + elements(997) << false;
    QTest::newRow("letters that are no style")
        << "<text>" + QByteArray(100'001, 's') + "</text>" + elements(998) << true;
    QTest::newRow("a name in another space copies nothing")
        << copiedPart(50'000, 0) + QByteArray("<use href=\"#part\"/>").repeated(2) << true;
}

void tst_svgGate::isHarmlessSvg_boundsDrawing()
{
    QFETCH(QByteArray, content);
    QTEST(isHarmlessSvg(svg(content)), "harmless");
}

void tst_svgGate::isHarmlessSvg_refusesWhatReachesOut_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("harmless");
    const QByteArray drawing = svg("<g/>");
    QTest::newRow("drawing") << drawing << true;
    QTest::newRow("declaration and comment")
        << "<?xml version=\"1.0\"?><!-- a -->" + drawing << true;
    QTest::newRow("document type") << "<!DOCTYPE svg SYSTEM \"svg.dtd\">" + drawing << true;
    QTest::newRow("entity") << "<!DOCTYPE svg [<!ENTITY a \"b\">]>" + drawing << false;
    QTest::newRow("instruction") << "<?xml-stylesheet href=\"a.css\"?>" + drawing << false;
    QTest::newRow("picture") << svg("<image/>") << false;
    QTest::newRow("picture of another space") << svg("<a:image xmlns:a=\"urn:a\"/>") << false;
    QTest::newRow("name that holds another") << svg("<images/>") << true;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("no XML") << QByteArray("drawing") << false;
    QTest::newRow("cut") << drawing.chopped(1) << false;
}

void tst_svgGate::isHarmlessSvg_refusesWhatReachesOut()
{
    QFETCH(QByteArray, document);
    QTEST(isHarmlessSvg(document), "harmless");
}

void tst_svgGate::readSvg_readsUpTo8MB_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isPacked");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("small") << 1 << false << true;
    QTest::newRow("8 MB") << largest << false << true;
    QTest::newRow("a byte more") << largest + 1 << false << false;
    QTest::newRow("small, packed") << 1 << true << true;
    QTest::newRow("8 MB, packed") << largest << true << true;
    QTest::newRow("a byte more, packed") << largest + 1 << true << false;
}

void tst_svgGate::readSvg_readsUpTo8MB()
{
    QFETCH(int, size);
    QFETCH(bool, isPacked);
    QFETCH(bool, isRead);
    const QByteArray content(size, 's');
    const TestPackages files;

    const QByteArray read = readSvg(files.write("a.svg", isPacked ? packed(content) : content));

    QCOMPARE(read.isNull(), !isRead);
    QVERIFY(read == (isRead ? content : QByteArray()));
}

void tst_svgGate::readSvg_returnsNull_whenThereIsNoFile()
{
    const TestPackages files;
    QVERIFY(readSvg(files.path() + "/a.svg").isNull());
    // What is repeated from nearly as far back as gzip looks.
    QByteArray far;
    for (int i = 0; far.size() < 30'000; ++i)
        far += QByteArray::number(i * 7919 % 10'007);
    QVERIFY(readSvg(files.write("far.svg", packed(far + far))) == far + far);
    QVERIFY(readSvg(files.write("cut.svg", packed(svg("<g/>")).chopped(9))).isNull());
    QCOMPARE(readSvg(files.write("magic.svg", "\x1f s")), QByteArray("\x1f s"));
}

QTEST_APPLESS_MAIN(tst_svgGate)
#include "tst_svgGate.moc"
