// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestPackage.h"
#include "ui/reader/HRContentReader_p.h"

#include <QBuffer>
#include <QImage>
#include <QSignalSpy>
#include <QtTest>

using namespace Hintreels;

namespace {

void addChild(
    HRXmlElement *parent, const QString &tag, const QString &text, const QString &source = {})
{
    auto *child = new HRXmlElement(parent);
    child->setTagName(tag);
    child->setContent(text);
    if (!source.isEmpty())
        child->setAttribute("source", source);
}

QStringList namesOf(const QVariantList &blocks)
{
    QStringList names;
    for (const QVariant &block : blocks)
        names.append(block.toMap().value("block").toString());
    return names;
}

QByteArray png(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace

class tst_HRContentReaderDetail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blocks_areThoseThatTheReaderWants_data();
    void blocks_areThoseThatTheReaderWants();
    void picture_isNone_whereTheReaderWantsText();
};

void tst_HRContentReaderDetail::blocks_areThoseThatTheReaderWants_data()
{
    QTest::addColumn<int>("detail");
    QTest::addColumn<bool>("startsSmall");
    QTest::addColumn<QStringList>("atFirst");
    QTest::addColumn<QStringList>("grown");
    const QStringList all{ "text", "video", "picture", "note" };
    const QStringList texts{ "text", "note" };
    QTest::newRow("all") << int(HRReaderSettings::fullDetail) << false << all << all;
    QTest::newRow("text") << int(HRReaderSettings::textDetail) << false << texts << texts;
    QTest::newRow("summary") << int(HRReaderSettings::summaryDetail) << false << QStringList()
                             << QStringList();
    QTest::newRow("small, then all")
        << int(HRReaderSettings::fullDetail) << true << QStringList() << all;
    QTest::newRow("small, then text")
        << int(HRReaderSettings::textDetail) << true << QStringList() << texts;
}

void tst_HRContentReaderDetail::blocks_areThoseThatTheReaderWants()
{
    QFETCH(int, detail);
    QFETCH(bool, startsSmall);
    HRSceneSettings settings{ { QLocale("en_US") }, false };
    settings.detail = HRReaderSettings::Detail(detail);
    settings.beginsSmall = [startsSmall](const QString &) { return startsSmall; };
    HRContentReader reader([&settings] { return settings; });
    HRXmlElement hint;
    addChild(&hint, "text", "One");
    addChild(&hint, "video", {}, "a.mp4");
    addChild(&hint, "picture", {}, "a.png");
    addChild(&hint, "note", "Two");
    const QVariantList blocks = reader.read(&hint).value("blocks").toList();
    const QSignalSpy details(&reader, &HRContentReader::detailChanged);

    QTEST(namesOf(reader.shownBlocks(blocks)), "atFirst");
    reader.grow();
    QTEST(namesOf(reader.shownBlocks(blocks)), "grown");
    QCOMPARE(details.count(), startsSmall ? 1 : 0);

    settings.detail = HRReaderSettings::summaryDetail;
    reader.follow();
    QCOMPARE(reader.shownBlocks(blocks), QVariantList());
    QVERIFY(reader.isSmall());
}

void tst_HRContentReaderDetail::picture_isNone_whereTheReaderWantsText()
{
    TestPackages files;
    files.write("a.png", png(QSize(20, 10)));
    HRSceneSettings settings{ { QLocale("en_US") }, false };
    const HRContentReader reader([&settings] { return settings; });
    QTRY_VERIFY(!reader.picture(files.path() + "/a.png").isEmpty());

    settings.detail = HRReaderSettings::textDetail;

    QVERIFY(reader.picture(files.path() + "/a.png").isEmpty());
}

QTEST_MAIN(tst_HRContentReaderDetail)
#include "tst_HRContentReaderDetail.moc"
