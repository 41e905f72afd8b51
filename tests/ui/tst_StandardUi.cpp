// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "support/MessageGuard.h"
#include "support/RecordingHost.h"
#include "support/TestClip.h"
#include "support/TestPackage.h"
#include "ui/HRReadableColor_p.h"
#include "ui/HRView.h"
#include "ui/HRWidget.h"

#include <QAccessible>
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QQuickItem>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

const QString packagesPath = QStringLiteral(HINTREELS_SOURCE_DIR "/packages");
const QPoint anywhere(50, 50);

class TranslatingHost : public RecordingHost
{
public:
    using RecordingHost::RecordingHost;

    QString translateString(const QString &text, const QString &context) override
    {
        requested.append(context + ":" + text);
        return translations.value(text);
    }

    QMap<QString, QString> translations; ///< a text without one comes back null
    QStringList requested; ///< "context:text"
};

QByteArray png()
{
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// In breadth first order; what a Repeater makes is no child of any object.
QList<QQuickItem *> itemsBelow(QQuickItem *item)
{
    QList<QQuickItem *> items{ item };
    for (int i = 0; i < items.size(); ++i)
        items += items[i]->childItems();
    return items;
}

/// A host with the standard UI and one package that uses it.
struct Fixture
{
    explicit Fixture(const QByteArray &entries, const QByteArray &locale = "en_US")
    {
        packages.writeControl(
            "Test", "test.xml", entries, "search=\"Standard\" locale=\"" + locale + "\"");
        packages.write("Test.hintreels/Resources/good.png", png());
        packages.write("Test.hintreels/Resources/broken.png", png().left(60));
        context.set(localeKey, QString(locale));
        context.set(hideDelayKey, 0); // never: the pointer is not near
        context.set(allowNamedResourcesKey, true);
    }

    /// The offscreen platform has messages of its own; those of QML fail the test, also the last
    /// ones that are written while the popup goes.
    ~Fixture()
    {
        host.reset();
        delete popup;
        const QStringList messages = guard.takeMessages().filter(".qml");
        if (!messages.isEmpty())
            QTest::qFail(qPrintable(messages.join(" | ")), __FILE__, __LINE__);
    }

    /// Shows a key; settings are changed before the first time.
    void show(const QString &key = "key")
    {
        if (!host)
            host = std::make_unique<TranslatingHost>(
                context, QStringList{ packages.path(), packagesPath });
        host->context().set(messageLevelKey, int(messageDebug));
        host->translations = translations;
        QVERIFY(host->show(key, anywhere, nullptr));
        popup = host->manager()->widget();
        QVERIFY(root());
        sizeAtOnce = root()->size();
        QCoreApplication::processEvents();
    }

    HRView *view() const { return popup->view(); }
    QQuickItem *root() const { return view()->rootObject(); }
    QQuickItem *item(const QString &name) const
    {
        for (QQuickItem *candidate : itemsBelow(root())) {
            if (candidate->objectName() == name)
                return candidate;
        }
        qFatal("there is no item %s", qPrintable(name));
    }
    QString text(const QString &name) const { return item(name)->property("text").toString(); }

    void click(const QQuickItem *target) const
    {
        const QPointF center
            = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QTest::mouseClick(view(), Qt::LeftButton, {}, center.toPoint());
    }

    QStringList troubles() const
    {
        QStringList found = host->takeMessages(messageDebug);
        found += host->takeMessages(messageWarning) + host->takeMessages(messageError);
        return found;
    }

    MessageGuard guard;
    TestPackages packages;
    HRContext context;
    QMap<QString, QString> translations;
    std::unique_ptr<TranslatingHost> host;
    QPointer<HRWidget> popup;
    QSizeF sizeAtOnce; ///< the content's size before any event was handled
};

QByteArray hint(const QByteArray &blocks, const QByteArray &attributes = "title=\"Pen\"")
{
    return "<hintreel key=\"key\" " + attributes + ">" + blocks + "</hintreel>";
}

int heightOf(const QByteArray &blocks)
{
    Fixture fixture(hint(blocks));
    fixture.show();
    return fixture.view()->height();
}

QQuickItem *itemWithText(const Fixture &fixture, const QString &text)
{
    const QList<QQuickItem *> items = itemsBelow(fixture.root());
    const auto found = std::find_if(items.begin(), items.end(),
        [&](const QQuickItem *item) { return item->property("text").toString() == text; });
    return found == items.end() ? nullptr : *found;
}

/// The colour of the panel on which an item stands.
QColor backgroundOf(const QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        const QColor color = item->property("color").value<QColor>();
        if (item->inherits("QQuickRectangle") && color.alpha() == 255)
            return color;
    }
    return {};
}

/// A hint whose only block is a clip, in the fixture's package.
struct ClipFixture : Fixture
{
    explicit ClipFixture(const QByteArray &attributes = {}, const TestClip &recording = TestClip())
        : Fixture("<hintreel key=\"key\" title=\"Pen\"><video source=\"clip.mp4\" " + attributes
            + "/></hintreel>")
    {
        recording.write(packages.path() + "/Test.hintreels/Resources/clip.mp4");
    }

    QQuickItem *clip() const { return item("clip"); }
    bool wanted() const { return clip()->property("wanted").toBool(); }
    bool ended() const { return clip()->property("ended").toBool(); }
    qreal time() const { return clip()->property("time").toReal(); }
    /// Number of the picture on show, in a clip of 30 pictures a second.
    int picture() const { return qRound(30 * time()); }
    qreal progress() const { return clip()->property("progress").toReal(); }
    QString buttonName() const { return item("clipButton")->property("name").toString(); }
};

TestClip longClip()
{
    TestClip clip;
    clip.pictures = 58;
    clip.rate = 10;
    return clip;
}

QByteArray longText(int paragraphs)
{
    QByteArray text = "<text><![CDATA[";
    for (int i = 0; i < paragraphs; ++i)
        text += "A paragraph among many.\n\n";
    return text + "[the end](far/below)]]></text>";
}

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor("#2b2d30"));
    palette.setColor(QPalette::WindowText, QColor("#dfe1e5"));
    palette.setColor(QPalette::Base, QColor("#1e1f22"));
    palette.setColor(QPalette::Highlight, QColor("#3574f0"));
    return palette;
}

const QByteArray everything
    = "\n"
      "<summary>Draws a %(quality)s line.</summary>\n"
      "<text><![CDATA[Some **bold** text, a [link](inside/text) and `code`.\n"
      "\n"
      "      - a list]]></text>\n"
      "<keys press=\"Ctrl+K, Shift+Drag\">Does it.</keys>\n"
      "<keys press=\"Ctrl+Alt+Shift+Page Down, Ctrl+Alt+Shift+Page Up\">Does it, too.</keys>\n"
      "<picture source=\"good.png\" alt=\"A picture\" width=\"100\">A caption</picture>\n"
      "<note kind=\"tip\">A tip</note>\n"
      "<note>A note</note>\n"
      "<note kind=\"warning\">A warning</note>\n"
      "<note kind=\"something\">Something</note>\n"
      "<link to=\"https://example.org/there\">There</link>\n"
      "\n";

} // namespace

class tst_StandardUi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ui_loadsWithoutTrouble_data();
    void ui_loadsWithoutTrouble();
    void ui_keepsItsWidth_andGrowsInHeight();
    void ui_hasItsSizeAtOnce_data();
    void ui_hasItsSizeAtOnce();
    void ui_leavesNoHole_data();
    void ui_leavesNoHole();
    void ui_scrolls_whenTheScreenIsTooSmall();
    void ui_showsTheNextHint_inTheSameScene();
    void ui_takesBackStayOpen_whenTheNextHintComes();
    void ui_translatesThenInterpolates();
    void ui_keepsItsWords_whenDetached();
    void ui_offersDocumentation_data();
    void ui_offersDocumentation();
    void ui_opensLinks_data();
    void ui_opensLinks();
    void ui_detaches_whenThePinIsPressed();
    void ui_followsTheHostsPalette_data();
    void ui_followsTheHostsPalette();
    void ui_isMirrored_whenTheLocaleIsWrittenFromRightToLeft();
    void ui_scalesItsSizes();
    void keyboard_reachesEveryLink_whenDetached();
    void keyboard_scrolls_whenDetached();
    void accessibility_namesWhatCanBePressed();
    void video_playsOnceThrough_thenOffersReplay();
    void video_playsAgain_whenItLoops();
    void video_pausesAndGoesOn_whenClicked();
    void video_goesWhereItsLineIsPressed();
    void video_waitsForTheReader_whenMotionIsReduced();
    void video_rests_whenThePopupIsHidden();
    void video_keepsItsAspect_whenItIsWide();
    void video_showsTheCaptionOfItsPicture();
    void video_isReachedByKeyboard_whenDetached();
    void simpleUi_isAsWideAsItsText();
    void example_isShownWithoutTrouble_data();
    void example_isShownWithoutTrouble();
};

void tst_StandardUi::cleanup()
{
    QGuiApplication::setPalette(QPalette());
}

void tst_StandardUi::ui_loadsWithoutTrouble_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("simple");

    const QByteArray attributes = "title=\"Pen\" shortcut=\"Ctrl+P\" documentation=\"tools/pen\"";
    for (const bool simple : { false, true }) {
        const char *ui = simple ? "simple" : "full";
        QTest::addRow("everything, %s", ui) << hint(everything, attributes) << simple;
        QTest::addRow("title only, %s", ui) << hint("") << simple;
        QTest::addRow("nothing at all, %s", ui) << hint("", "") << simple;
        QTest::addRow("shortcut only, %s", ui) << hint("", "shortcut=\"F1\"") << simple;
        QTest::addRow("broken picture, %s", ui)
            << hint("<picture source=\"broken.png\"/>") << simple;
        QTest::addRow("missing picture, %s", ui)
            << hint("<picture source=\"missing.png\"/>") << simple;
        QTest::addRow("text around unknown elements, %s", ui)
            << hint("<text>a<b>c</b>d</text><b/>") << simple;
    }
}

void tst_StandardUi::ui_loadsWithoutTrouble()
{
    QFETCH(QByteArray, entry);
    QFETCH(bool, simple);
    Fixture fixture(entry);
    fixture.context.set(simpleTooltipKey, simple);

    fixture.show();

    QCOMPARE(fixture.troubles(), QStringList());
    QCOMPARE(fixture.root()->size(), fixture.sizeAtOnce);
    QCOMPARE(
        fixture.view()->size(), QSizeF(fixture.root()->width(), fixture.root()->height()).toSize());
}

void tst_StandardUi::ui_keepsItsWidth_andGrowsInHeight()
{
    Fixture fixture(
        hint("") + "<hintreel key=\"long\" title=\"A title\">" + everything + "</hintreel>");

    fixture.show();
    const QSize small = fixture.view()->size();
    fixture.show("long");
    QCOMPARE(fixture.root()->size(), fixture.sizeAtOnce);
    const QSize large = fixture.view()->size();

    QCOMPARE(large.width(), small.width());
    QVERIFY(large.height() > 3 * small.height());
    QVERIFY(small.height() < 80);
}

void tst_StandardUi::ui_hasItsSizeAtOnce_data()
{
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("text") << QByteArray("<text>- Some\n- text</text>");
    QTest::newRow("keys") << QByteArray("<keys press=\"Ctrl+A\">Does it.</keys>");
    QTest::newRow("picture") << QByteArray("<picture source=\"good.png\">Caption</picture>");
    QTest::newRow("note") << QByteArray("<note>A note\n\nof two paragraphs</note>");
    QTest::newRow("link") << QByteArray("<link to=\"page\">There</link>");
    QTest::newRow("video") << QByteArray("<video source=\"clip.mp4\">Caption</video>");
}

void tst_StandardUi::ui_hasItsSizeAtOnce()
{
    QFETCH(QByteArray, block);
    Fixture fixture(hint(block) + "<hintreel key=\"empty\"/>");
    TestClip().write(fixture.packages.path() + "/Test.hintreels/Resources/clip.mp4");

    fixture.show();
    const QSizeF first = fixture.sizeAtOnce;
    QTest::qWait(50);
    QCOMPARE(fixture.root()->size(), first);
    QVERIFY(first.height() > 60);

    fixture.show("empty");
    QVERIFY(fixture.sizeAtOnce.height() < first.height() - 20);
    fixture.show();
    QCOMPARE(fixture.sizeAtOnce, first);
}

void tst_StandardUi::ui_leavesNoHole_data()
{
    QTest::addColumn<QByteArray>("nothing");

    QTest::newRow("missing picture")
        << QByteArray("<picture source=\"missing.png\">Caption</picture>");
    QTest::newRow("picture that is a directory")
        << QByteArray("<picture source=\".\">Caption</picture>");
    QTest::newRow("unknown element") << QByteArray("<blink>Text</blink>");
    QTest::newRow("empty text") << QByteArray("<text>  </text>");
    QTest::newRow("empty note") << QByteArray("<note kind=\"tip\"/>");
    QTest::newRow("empty summary") << QByteArray("<summary/>");
    QTest::newRow("missing clip") << QByteArray("<video source=\"missing.mp4\">Caption</video>");
    QTest::newRow("clip that is a picture")
        << QByteArray("<video source=\"good.png\">Caption</video>");
    QTest::newRow("link to nowhere") << QByteArray("<link>Label</link>");
}

void tst_StandardUi::ui_leavesNoHole()
{
    QFETCH(QByteArray, nothing);

    const QByteArray text = "<text>Text</text>";

    QCOMPARE(heightOf(nothing + text + nothing + nothing), heightOf(text));
    QCOMPARE(heightOf(nothing), heightOf(""));
}

void tst_StandardUi::ui_scrolls_whenTheScreenIsTooSmall()
{
    Fixture fixture(hint(longText(100)) + "<hintreel key=\"short\" title=\"Short\"/>");
    fixture.show();
    QQuickItem *page = fixture.item("page");
    const auto *bar = page->findChild<QQuickItem *>("scrollBar");

    QVERIFY(fixture.view()->height() <= fixture.view()->screen()->availableGeometry().height());
    QVERIFY(fixture.view()->height() > 400);
    QVERIFY(page->property("contentHeight").toReal() > fixture.view()->height());
    QVERIFY(bar->isVisible());

    page->setProperty("contentY", 100);
    fixture.show("short");

    QVERIFY(!bar->isVisible());
    QCOMPARE(page->property("contentY").toReal(), 0.0);
}

void tst_StandardUi::ui_showsTheNextHint_inTheSameScene()
{
    Fixture fixture(hint(everything)
        + "<hintreel key=\"next\" title=\"Line\" shortcut=\"L\">\n"
          "<summary>Next</summary></hintreel>\n");
    fixture.show();
    const QPointer<QQuickItem> scene = fixture.root();

    fixture.show("next");

    QCOMPARE(fixture.root(), scene.data());
    QCOMPARE(fixture.text("title"), QString("Line"));
    QCOMPARE(fixture.text("summary"), QString("Next"));
    QCOMPARE(fixture.item("shortcut")->property("shortcut").toString(), QString("L"));
    QCOMPARE(fixture.item("blocks")->height(), 0.0);
}

void tst_StandardUi::ui_takesBackStayOpen_whenTheNextHintComes()
{
    Fixture fixture(hint("") + "<hintreel key=\"next\" title=\"Line\"/>");
    fixture.show();
    fixture.view()->setStayOpen(true);

    fixture.show("next");

    QVERIFY(!fixture.view()->stayOpen());
}

void tst_StandardUi::ui_translatesThenInterpolates()
{
    Fixture fixture(hint(everything));
    fixture.translations = { { "Draws a %(quality)s line.", "Zeichnet eine %(quality)s Linie." },
        { "Tip", "Tipp" } };
    fixture.show();
    QVERIFY(itemWithText(fixture, "Does it."));
    fixture.host->setGlobalProperty("quality", "feine");
    fixture.translations["Does it."] = "Macht es.";
    fixture.popup->hide();
    fixture.show();

    QCOMPARE(fixture.text("summary"), QString("Zeichnet eine feine Linie."));
    QVERIFY(itemWithText(fixture, "Tipp"));
    QVERIFY(itemWithText(fixture, "Note"));
    QVERIFY(itemWithText(fixture, "Macht es."));
    QVERIFY(fixture.host->requested.contains("Content:Does it."));
    QVERIFY(fixture.host->requested.contains("StandardUI:Tip"));
}

void tst_StandardUi::ui_keepsItsWords_whenDetached()
{
    Fixture fixture(hint(everything));
    fixture.translations = { { "Tip", "Tipp" } };
    fixture.show();

    fixture.host->translations.clear();
    fixture.view()->setReserved(true);
    QGuiApplication::setPalette(darkPalette());
    QCoreApplication::processEvents();

    QVERIFY(itemWithText(fixture, "Tipp"));
}

void tst_StandardUi::ui_offersDocumentation_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<bool>("available");
    QTest::addColumn<bool>("offered");

    const QByteArray documented = "title=\"Pen\" documentation=\"pen\"";
    QTest::newRow("offered") << documented << true << true;
    QTest::newRow("not available in the host") << documented << false << false;
    QTest::newRow("not in the content") << QByteArray("title=\"Pen\"") << true << false;
    QTest::newRow("empty in the content")
        << QByteArray("title=\"Pen\" documentation=\" \"") << true << false;
}

void tst_StandardUi::ui_offersDocumentation()
{
    QFETCH(QByteArray, attributes);
    QFETCH(bool, available);
    QFETCH(bool, offered);
    Fixture fixture(hint("", attributes));
    fixture.context.set(allowNamedResourcesKey, available);

    fixture.show();

    const QQuickItem *documentation = fixture.item("documentation");
    QCOMPARE(documentation->isVisible(), offered);
    if (!offered)
        return;
    fixture.click(documentation);
    QCOMPARE(
        fixture.host->openedResources, (QList<QPair<int, QString>>{ { resourceName, "pen" } }));
    fixture.host->context().set(allowNamedResourcesKey, false);
    QVERIFY(!documentation->isVisible());
}

void tst_StandardUi::ui_opensLinks_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("resource");

    QTest::newRow("link to a URL") << QByteArray("<link to=\"https://example.org\">Label</link>")
                                   << int(resourceUrl) << "https://example.org";
    QTest::newRow("link without a label")
        << QByteArray("<link to=\"page\"/>") << int(resourceName) << "page";
    QTest::newRow("link in text") << QByteArray("<text>[Label](some/path)</text>")
                                  << int(resourcePath) << "some/path";
    QTest::newRow("link in a note")
        << QByteArray("<note>[Label](page)</note>") << int(resourceName) << "page";
}

void tst_StandardUi::ui_opensLinks()
{
    QFETCH(QByteArray, block);
    QFETCH(int, type);
    QFETCH(QString, resource);
    Fixture fixture(hint(block));
    fixture.show();

    const QList<QQuickItem *> items = itemsBelow(fixture.item("blocks"));
    const auto link = std::find_if(items.begin(), items.end(), [](QQuickItem *item) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        return accessible && accessible->role() == QAccessible::Link;
    });
    QVERIFY(link != items.end());
    fixture.click(*link);

    QCOMPARE(fixture.host->openedResources, (QList<QPair<int, QString>>{ { type, resource } }));
}

void tst_StandardUi::ui_detaches_whenThePinIsPressed()
{
    Fixture fixture(hint(everything));
    fixture.show();
    const QPointer<HRWidget> popup = fixture.popup;
    QVERIFY(fixture.item("pin")->isVisible());

    fixture.click(fixture.item("pin"));

    QVERIFY(fixture.view()->reserved());
    QVERIFY(popup->isVisible());
    QVERIFY(fixture.host->manager()->widget() != popup);
    QVERIFY(!fixture.item("pin")->isVisible());
}

void tst_StandardUi::ui_followsTheHostsPalette_data()
{
    QTest::addColumn<QPalette>("palette");

    QTest::newRow("light") << QPalette(QColor("#efefef"));
    QTest::newRow("dark") << darkPalette();
    QTest::newRow("middle grey") << QPalette(QColor("#808080"));
}

void tst_StandardUi::ui_followsTheHostsPalette()
{
    QFETCH(QPalette, palette);
    Fixture fixture(hint(everything, "title=\"Pen\" shortcut=\"P\" documentation=\"pen\""));
    fixture.show();

    QGuiApplication::setPalette(palette);

    QCOMPARE(fixture.root()->property("color").value<QColor>(), palette.color(QPalette::Window));
    int texts = 0;
    for (const QQuickItem *item : itemsBelow(fixture.root())) {
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextEdit");
        if (!isText || item->property("text").toString().isEmpty())
            continue;
        const QColor color = item->property("color").value<QColor>();
        const qreal contrast = contrastRatio(color, backgroundOf(item->parentItem()));
        QVERIFY2(contrast >= 4.5,
            qPrintable(item->property("text").toString() + QString(" %1").arg(contrast)));
        ++texts;
    }
    QVERIFY(texts > 15);
}

void tst_StandardUi::ui_isMirrored_whenTheLocaleIsWrittenFromRightToLeft()
{
    Fixture fixture(hint(everything, "title=\"Pen\" shortcut=\"Ctrl+P\""), "he_IL");
    fixture.show();
    const auto centerOf = [&](const QQuickItem *item) {
        return item->mapToScene({ item->width() / 2, 0 }).x();
    };

    QVERIFY(centerOf(fixture.item("pin")) < fixture.root()->width() / 4);
    QVERIFY(centerOf(fixture.item("title")) > fixture.root()->width() / 2);
    QVERIFY(centerOf(fixture.item("shortcut")) < centerOf(fixture.item("title")));
    QVERIFY(centerOf(itemWithText(fixture, "Ctrl")) < centerOf(itemWithText(fixture, "P")));
    QVERIFY(centerOf(itemWithText(fixture, "There")) > fixture.root()->width() / 2);
}

void tst_StandardUi::ui_scalesItsSizes()
{
    Fixture normal(hint("<picture source=\"good.png\"/>"));
    normal.show();
    const QSize size = normal.view()->size();

    Fixture doubled(hint("<picture source=\"good.png\"/>"));
    doubled.context.set(scaleKey, 2.0);
    doubled.show();

    QCOMPARE(doubled.view()->width(), 2 * size.width());
    QVERIFY(qAbs(doubled.view()->height() - 2 * size.height()) < 8);
}

void tst_StandardUi::keyboard_reachesEveryLink_whenDetached()
{
    Fixture fixture(hint(everything, "title=\"Pen\" documentation=\"pen\""));
    fixture.show();
    HRView *view = fixture.view();
    view->setReserved(true);
    view->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), view);

    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(view, Qt::Key_Tab);
        QTest::keyClick(view, Qt::Key_Return);
    }

    QCOMPARE(fixture.host->openedResources,
        (QList<QPair<int, QString>>{ { resourcePath, "inside/text" },
            { resourceUrl, "https://example.org/there" }, { resourceName, "pen" } }));
}

void tst_StandardUi::keyboard_scrolls_whenDetached()
{
    Fixture fixture(hint(longText(100)));
    fixture.show();
    HRView *view = fixture.view();
    view->setReserved(true);
    view->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), view);
    const QQuickItem *page = fixture.item("page");
    const auto top = [page] { return page->property("contentY").toReal(); };

    QTest::keyClick(view, Qt::Key_Down);
    QVERIFY(top() > 0);
    QTest::keyClick(view, Qt::Key_PageUp);
    QCOMPARE(top(), 0.0);
    QTest::keyClick(view, Qt::Key_End);
    const qreal end = top();
    QVERIFY(end > 500);
    QTest::keyClick(view, Qt::Key_Home);
    QCOMPARE(top(), 0.0);
    QTest::keyClick(view, Qt::Key_Tab);
    QVERIFY(top() > end - 50);
}

void tst_StandardUi::accessibility_namesWhatCanBePressed()
{
    Fixture fixture(hint(everything, "title=\"Pen\" documentation=\"pen\""));
    fixture.show();

    QStringList names;
    for (QQuickItem *item : itemsBelow(fixture.root())) {
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        const auto role = accessible ? accessible->role() : QAccessible::NoRole;
        if (item->isVisible() && (role == QAccessible::Link || role == QAccessible::Button))
            names.append(accessible->text(QAccessible::Name));
    }
    names.sort();

    QCOMPARE(names, (QStringList{ "Documentation", "Keep open in a window", "There", "link" }));
}

void tst_StandardUi::video_playsOnceThrough_thenOffersReplay()
{
    ClipFixture fixture;
    fixture.show();
    QCOMPARE(fixture.buttonName(), QString("Pause"));

    QTRY_VERIFY(fixture.ended());
    QTRY_COMPARE(fixture.picture(), 7);
    QCOMPARE(fixture.buttonName(), QString("Play again"));

    fixture.click(fixture.item("clipButton"));
    QCOMPARE(fixture.buttonName(), QString("Pause"));
    QTRY_VERIFY(fixture.time() < 0.1);
    QTRY_VERIFY(fixture.ended());
    QCOMPARE(fixture.troubles(), QStringList());
}

void tst_StandardUi::video_playsAgain_whenItLoops()
{
    ClipFixture fixture("loop=\"true\"");
    fixture.show();

    for (int round = 0; round < 2; ++round) {
        QTRY_VERIFY(fixture.time() > 0.15);
        QTRY_VERIFY(fixture.time() < 0.1);
    }
    QVERIFY(!fixture.ended());
}

void tst_StandardUi::video_pausesAndGoesOn_whenClicked()
{
    ClipFixture fixture({}, longClip());
    fixture.show();
    QTRY_VERIFY(fixture.time() > 0.2);

    fixture.click(fixture.clip());
    QCOMPARE(fixture.buttonName(), QString("Play"));
    QTest::qWait(150);
    const qreal pausedAt = fixture.time();
    QTest::qWait(300);
    QCOMPARE(fixture.time(), pausedAt);

    fixture.click(fixture.item("clipButton"));
    QTRY_VERIFY(fixture.time() > pausedAt + 0.2);
}

void tst_StandardUi::video_goesWhereItsLineIsPressed()
{
    ClipFixture fixture({}, longClip());
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    QTest::qWait(300); // until all is decoded

    fixture.click(fixture.item("progressLine"));
    QTRY_VERIFY(qAbs(fixture.progress() - 0.5) < 0.05);
    QTRY_VERIFY(qAbs(fixture.time() - 2.9) < 0.2);
    QVERIFY(!fixture.wanted());
}

void tst_StandardUi::video_waitsForTheReader_whenMotionIsReduced()
{
    ClipFixture fixture("loop=\"true\"");
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    QTest::qWait(300);
    QCOMPARE(fixture.time(), 0.0);
    QCOMPARE(fixture.buttonName(), QString("Play"));

    fixture.click(fixture.clip());

    QTRY_VERIFY(fixture.ended());
    QTRY_COMPARE(fixture.picture(), 7);
}

void tst_StandardUi::video_rests_whenThePopupIsHidden()
{
    ClipFixture fixture({}, longClip());
    fixture.show();
    QTRY_VERIFY(fixture.time() > 0.1);

    fixture.popup->hide();
    QTest::qWait(150);
    const qreal restingAt = fixture.progress();
    QTest::qWait(300);

    QCOMPARE(fixture.progress(), restingAt);
}

void tst_StandardUi::video_keepsItsAspect_whenItIsWide()
{
    TestClip wide;
    wide.size = QSize(1200, 300);
    wide.pictures = 2;
    ClipFixture fixture({}, wide);
    fixture.show();

    const QQuickItem *clip = fixture.clip();
    QVERIFY(clip->width() < fixture.root()->width());
    QVERIFY(qAbs(clip->width() / clip->height() - 4) < 0.1);
    QCOMPARE(fixture.root()->size(), fixture.sizeAtOnce);
    QTRY_VERIFY(clip->property("shown").toBool());
    QCOMPARE(fixture.root()->size(), fixture.sizeAtOnce);
}

void tst_StandardUi::video_showsTheCaptionOfItsPicture()
{
    ClipFixture fixture;
    fixture.packages.write("Test.hintreels/Resources/clip.vtt",
        "WEBVTT\n\n00:00.000 --> 00:00.010\nFirst\n\n00:00.200 --> 00:09.000\nLast\n");
    fixture.packages.write("Test.hintreels/Resources/clip.de_DE.vtt",
        "WEBVTT\n\n00:00.000 --> 00:00.010\nZuerst\n\n00:00.200 --> 00:09.000\nZuletzt\n");
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    const QQuickItem *caption = fixture.item("clipCaption");
    QTRY_VERIFY(caption->isVisible());
    QCOMPARE(caption->property("text").toString(), QString("First"));

    fixture.click(fixture.clip());
    QTRY_VERIFY(fixture.ended());
    QTRY_COMPARE(caption->property("text").toString(), QString("Last"));

    fixture.popup->hide();
    fixture.host->context().set(localeKey, "de_DE");
    fixture.show();
    QTRY_COMPARE(fixture.text("clipCaption"), QString("Zuerst"));
}

void tst_StandardUi::video_isReachedByKeyboard_whenDetached()
{
    ClipFixture fixture({}, longClip());
    fixture.context.set(reducedMotionKey, true);
    fixture.show();
    QTRY_VERIFY(fixture.clip()->property("shown").toBool());
    HRView *view = fixture.view();
    view->setReserved(true);
    view->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), view);

    QTest::keyClick(view, Qt::Key_Tab);
    QTest::keyClick(view, Qt::Key_Space);
    QVERIFY(fixture.wanted());
    QTest::keyClick(view, Qt::Key_Space);
    QVERIFY(!fixture.wanted());

    const qreal before = fixture.progress();
    QTest::keyClick(view, Qt::Key_Tab);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(view, Qt::Key_Right);
    QVERIFY(fixture.progress() > before + 0.1);
}

void tst_StandardUi::simpleUi_isAsWideAsItsText()
{
    Fixture fixture(hint("<summary>A summary</summary>", "title=\"Pen\" shortcut=\"P\"")
        + "<hintreel key=\"long\" title=\"Pen\"><summary>" + QByteArray(" A summary").repeated(50)
        + "</summary></hintreel>");
    fixture.context.set(simpleTooltipKey, true);

    fixture.show();
    QVERIFY(fixture.view()->width() < 200);
    QVERIFY(fixture.view()->height() < 80);
    QCOMPARE(fixture.text("summary"), QString("A summary"));

    fixture.show("long");
    QVERIFY(fixture.view()->width() > 300);
    QVERIFY(fixture.view()->width() < 500);
}

void tst_StandardUi::example_isShownWithoutTrouble_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("blocks");

    QTest::newRow("pen") << "toolPen" << 7;
    QTest::newRow("undo") << "editUndo" << 0;
}

void tst_StandardUi::example_isShownWithoutTrouble()
{
    QFETCH(QString, key);
    QFETCH(int, blocks);
    QFile document(HINTREELS_SOURCE_DIR "/docs/content-format.md");
    QVERIFY(document.open(QIODevice::ReadOnly));
    const QRegularExpression fence(
        "```xml\n(<\\?xml.*?)```", QRegularExpression::DotMatchesEverythingOption);
    const QString example = fence.match(QString::fromUtf8(document.readAll())).captured(1);
    QVERIFY(!example.isEmpty());
    Fixture fixture(hint(""));
    fixture.packages.write("Painter.hintreels/Control/en_US.xml", example.toUtf8());
    fixture.packages.write("Painter.hintreels/Resources/pen.png", png());
    TestClip().write(fixture.packages.path() + "/Painter.hintreels/Resources/pen.mp4");

    fixture.show(key);

    QCOMPARE(fixture.troubles(), QStringList());
    int shown = 0;
    for (const QQuickItem *block : fixture.item("blocks")->childItems())
        shown += block->height() > 0 ? 1 : 0;
    QCOMPARE(shown, blocks);
}

QTEST_MAIN(tst_StandardUi)
#include "tst_StandardUi.moc"
