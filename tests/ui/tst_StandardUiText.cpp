// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestReader.h"
#include "ui/PaintedContrast.h"

#include <QApplication>
#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextCursor>

using namespace Hintreels;

namespace {

/// How a reader has changed texts.
struct TextWish
{
    qreal font = 1.0; ///< the application's, times
    int reader = 100; ///< HRReaderSettings::textSize
    bool spaced = false; ///< as WCAG 1.4.12 has it
};

/// Letters 0.12 and words 0.16 of the font's size further apart, as a desktop's theme would have
/// it: by the font of the application.
QFont fontFor(const TextWish &wish, QFont font)
{
    const int pixels = qRound(QFontInfo(font).pixelSize() * wish.font);
    font.setPixelSize(pixels);
    if (wish.spaced) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, 0.12 * pixels);
        font.setWordSpacing(0.16 * pixels);
    }
    return font;
}

/// No desktop can do this to a program: lines 1.5 times their height, and twice the font's size
/// between paragraphs.
void spaceLines(QQuickItem &item)
{
    if (item.inherits("QQuickText")) {
        item.setProperty("lineHeight", 1.5);
        return;
    }
    auto *document = item.property("textDocument").value<QQuickTextDocument *>()->textDocument();
    const int pixels = item.property("font").value<QFont>().pixelSize();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        format.setLineHeight(150, QTextBlockFormat::ProportionalHeight);
        format.setBottomMargin(2 * pixels);
        QTextCursor(block).setBlockFormat(format);
    }
}

/// A hint with words of each kind, as its reader has it.
struct TextFixture : StandardUiFixture
{
    explicit TextFixture(const TextWish &wish)
        : StandardUiFixture(allKindsOfWords)
        , fontBefore(QApplication::font())
    {
        QApplication::setFont(fontFor(wish, fontBefore));
        reader.settings.setTextSize(wish.reader);
        context.set(readerSettingsKey, reader.asValue());
        show();
        makeAll();
        if (wish.spaced) {
            for (QQuickItem *text : texts())
                spaceLines(*text);
        }
        paint();
    }

    ~TextFixture() { QApplication::setFont(fontBefore); }

    QList<QQuickItem *> texts() const
    {
        QList<QQuickItem *> found;
        for (QQuickItem *item : wordsBelow(root())) {
            if (item->inherits("QQuickText") || item->inherits("QQuickTextEdit"))
                found.append(item);
        }
        return found;
    }

    TestReader reader;
    QFont fontBefore;
};

QRectF areaOf(const QQuickItem &item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

QRectF withMargin(const QRectF &area, qreal margin)
{
    return area.adjusted(-margin, -margin, margin, margin);
}

QString nameOf(const QQuickItem &item)
{
    return item.objectName() + ' ' + item.property("text").toString().left(40);
}

/// What of a text has no place, empty where all has. Half pixels are rounding.
QString troubleOf(const QQuickItem &text, const QQuickItem &root)
{
    const auto number = [&text](const char *name) { return text.property(name).toReal(); };
    if (number("contentWidth") > text.width() + 1)
        return nameOf(text) + " is wider than its place";
    if (number("contentHeight") + number("bottomPadding") > text.height() + 1)
        return nameOf(text) + " is higher than its place";
    if (!withMargin(areaOf(*text.parentItem()), 1).contains(areaOf(text)))
        return nameOf(text) + " sticks out of what is around it";
    if (areaOf(text).left() < 0 || areaOf(text).right() > root.width())
        return nameOf(text) + " sticks out of the popup";
    return {};
}

QString overlapIn(const QList<QQuickItem *> &items)
{
    for (const QQuickItem *a : items) {
        for (const QQuickItem *b : items) {
            if (a != b && withMargin(areaOf(*a), -1).intersects(withMargin(areaOf(*b), -1)))
                return nameOf(*a) + " lies over " + nameOf(*b);
        }
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(TextWish)

/// Larger and wider texts keep their place: WCAG 1.4.4 and 1.4.12.
class tst_StandardUiText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_isWhole_howeverItIsSetUp_data();
    void text_isWhole_howeverItIsSetUp();
};

void tst_StandardUiText::text_isWhole_howeverItIsSetUp_data()
{
    QTest::addColumn<TextWish>("wish");
    QTest::newRow("as it is") << TextWish();
    QTest::newRow("200 % by the application's font") << TextWish{ 2.0, 100, false };
    QTest::newRow("200 % by the reader's settings") << TextWish{ 1.0, 200, false };
    QTest::newRow("300 % by the reader's settings") << TextWish{ 1.0, 300, false };
    QTest::newRow("spaced") << TextWish{ 1.0, 100, true };
    QTest::newRow("spaced, and 200 %") << TextWish{ 2.0, 100, true };
}

void tst_StandardUiText::text_isWhole_howeverItIsSetUp()
{
    QFETCH(TextWish, wish);
    TextFixture f(wish);
    const QList<QQuickItem *> texts = f.texts();
    QVERIFY(texts.size() > 18);
    for (const QQuickItem *text : texts) {
        const QString trouble = troubleOf(*text, *f.root());
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    }
    const QString overlap = overlapIn(texts + QList<QQuickItem *>{ f.item("pin") });
    QVERIFY2(overlap.isEmpty(), qPrintable(overlap));
    for (QQuickItem *text : texts) {
        scrollTo(f, *text);
        const QRect seen = placeOf(*text) & QRect(QPoint(), f.view()->size());
        QVERIFY2(!seen.isEmpty(), qPrintable(nameOf(*text) + " is out of reach"));
    }
}

QTEST_MAIN(tst_StandardUiText)
#include "tst_StandardUiText.moc"
