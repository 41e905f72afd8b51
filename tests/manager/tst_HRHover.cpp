// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndex.h"
#include "manager/HRManagerPrivate_p.h"
#include "manager/ManagerFixture.h"
#include "ui/popup/HRWidgetPrivate_p.h"

using namespace Hintreels;

namespace {

bool show(ManagerFixture &f, const HRHover &hover)
{
    return HRManagerPrivate::of(*f.host->manager())->show(hover);
}

HRHover hoverOf(const QStringList &keys, const HRHover::Accepts &accepts = {})
{
    return { keys, QPoint(100, 100), nullptr, {}, accepts };
}

} // namespace

// A hover with more in it than HRManager::show() takes.
class tst_HRHover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_areTriedInOrder_data();
    void keys_areTriedInOrder();
    void keys_areReadOnce();
    void keys_mayBeNone();
    void accepts_judgesWhatIsFound();
    void accepts_judgesWhatIsShown();
    void accepts_keepsShownElement_whenIndexGivesItAgain();
    void completes_addsToWhatIsShown();
    void area_reachesThePopup();
};

void tst_HRHover::keys_areTriedInOrder_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("shown");
    QTest::newRow("special") << QStringList{ "pen", "ink" } << "pen";
    QTest::newRow("general") << QStringList{ "nib/pen", "ink", "pen" } << "ink";
    QTest::newRow("no content") << QStringList{ "nib/pen", "nib" } << "";
}

void tst_HRHover::keys_areTriedInOrder()
{
    QFETCH(QStringList, keys);
    QFETCH(QString, shown);
    ManagerFixture f;

    QCOMPARE(show(f, hoverOf(keys)), !shown.isEmpty());

    QCOMPARE(f.popup()->isVisible(), !shown.isEmpty());
    QCOMPARE(f.content() ? f.content()->attribute("key") : QString(), shown);
    QCOMPARE(f.host->shortcutRequests.value(0).section(':', 0, 0), shown);
}

void tst_HRHover::keys_areReadOnce()
{
    ManagerFixture f;
    show(f, hoverOf({ "nib", "ink" }));
    const QStringList messages = f.host->takeMessages(messageInformation);
    QCOMPARE(messages.size(), 3);
    QCOMPARE(messages[0], QString("looking for Hintreel for key:nib"));
    QCOMPARE(messages[1], QString("looking for Hintreel for key:ink"));
    QVERIFY(messages[2].startsWith("Retrieved ink in "));

    show(f, hoverOf({ "nib", "ink" }));
    QCOMPARE(f.host->takeMessages(messageInformation), messages.mid(0, 2));
}

void tst_HRHover::keys_mayBeNone()
{
    ManagerFixture f({ { fallbackKeyKey, "ink" } });
    QVERIFY(show(f, hoverOf({})));
    QCOMPARE(f.content()->attribute("key"), QString("ink"));
    QVERIFY(f.host->takeMessages(messageInformation).isEmpty());
}

void tst_HRHover::accepts_judgesWhatIsFound()
{
    ManagerFixture f;
    QStringList asked;
    const auto accepts = [&asked](const QString &key, const HRXmlElement &content) {
        asked += key + ':' + content.attribute("title");
        return key != "pen";
    };

    QVERIFY(show(f, hoverOf({ "nib", "pen", "ink" }, accepts)));

    QCOMPARE(f.content()->attribute("key"), QString("ink"));
    QCOMPARE(asked, QStringList({ "pen:Pen", "ink:" }));
}

void tst_HRHover::accepts_judgesWhatIsShown()
{
    ManagerFixture f;
    show(f, hoverOf({ "pen" }));
    QVERIFY(show(f, hoverOf({ "pen", "ink" }, [](const QString &key, const HRXmlElement &) {
        return key == "ink";
    })));
    QCOMPARE(f.content()->attribute("key"), QString("ink"));
}

void tst_HRHover::accepts_keepsShownElement_whenIndexGivesItAgain()
{
    class Index : public HRIndex
    {
    public:
        using HRIndex::HRIndex;
        HRXmlElement *retrieve(const QString &, const QLocale &, QString &path, int &depth,
            HRXmlElement *&answer) override
        {
            path = "/";
            depth = 1;
            answer = root.get();
            return element;
        }
        // No `hintreels`, so that nobody takes it for the root of one hint.
        std::unique_ptr<HRXmlElement> root = std::make_unique<HRXmlElement>();
        QPointer<HRXmlElement> element = new HRXmlElement(root.get());
    };

    HRContext context;
    context.set(hideDelayKey, 0);
    Index index(&context, {});
    RecordingHost host(context, {}, &index);
    QVERIFY(host.show("pen", QPoint(), nullptr));
    const auto refuses = [](const QString &, const HRXmlElement &) { return false; };
    HRManagerPrivate::of(*host.manager())->show(hoverOf({ "ink" }, refuses));
    QVERIFY(index.element);
    QCOMPARE(host.manager()->widget()->view()->content(), index.element.data());
}

void tst_HRHover::completes_addsToWhatIsShown()
{
    ManagerFixture f;
    HRHover hover = hoverOf({ "nib", "ink" });
    hover.completes = [](const QString &key, HRXmlElement &content) {
        content.setAttribute("title", "Title of " + key);
    };
    QVERIFY(show(f, hover));
    QCOMPARE(f.title(), QString("Title of ink"));
}

void tst_HRHover::area_reachesThePopup()
{
    ManagerFixture f;
    QWidget target;
    HRHover hover = hoverOf({ "pen" });
    hover.object = &target;
    hover.area = QRect(90, 90, 30, 20);
    show(f, hover);
    QCOMPARE(f.popup()->referenceWidget(), &target);
    QCOMPARE(HRWidgetPrivate::of(*f.popup()).area, hover.area);

    f.show("ink");
    QVERIFY(HRWidgetPrivate::of(*f.popup()).area.isNull());
}

QTEST_MAIN(tst_HRHover)
#include "tst_HRHover.moc"
