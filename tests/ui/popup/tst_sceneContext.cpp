// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/sceneContext_p.h"

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "ui/popup/HRView.h"
#include "ui/reader/HRContentReader_p.h"
#include "ui/reader/HRUiWords_p.h"

#include <QQmlContext>
#include <QtTest>

using namespace Hintreels;

namespace {

HRContentReader *readerOf(const HRView &view)
{
    return view.rootContext()->contextProperty("hintreelReader").value<HRContentReader *>();
}

} // namespace

/// Without a manager; tst_HRWidget has the context of one.
class tst_sceneContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void context_tellsWhatIsShown();
    void reader_followsTheDesktop();
    void colors_areTheReaders();
};

void tst_sceneContext::context_tellsWhatIsShown()
{
    HRView view(nullptr, nullptr);
    HRXmlElement first;
    HRXmlElement second;
    setSceneContext(view, &first, "/first", nullptr);
    const QPointer<HRContentReader> reader = readerOf(view);
    setSceneContext(view, &second, "/second", nullptr);
    const QQmlContext &context = *view.rootContext();
    QCOMPARE(context.contextProperty("hintreel").value<HRXmlElement *>(), &second);
    QCOMPARE(context.contextProperty("dataLocation").toString(), QString("/second"));
    QCOMPARE(context.contextProperty("hintreelView").value<QObject *>(), &view);
    QVERIFY(reader);
    QCOMPARE(readerOf(view), reader.data());
}

void tst_sceneContext::reader_followsTheDesktop()
{
    HRView view(nullptr, nullptr);
    setSceneContext(view, nullptr, QString(), nullptr);
    QLocale::setDefault(QLocale("de_DE"));
    QCOMPARE(readerOf(view)->word("Pause"), HRUiWords().word(QLocale::system(), "Pause"));
    QLocale::setDefault(QLocale::c());
}

void tst_sceneContext::colors_areTheReaders()
{
    HRView view(nullptr, nullptr);
    const QVariantMap colors{ { "window", QColor(Qt::red) } };
    setSceneColors(view, colors);
    QVERIFY(!readerOf(view));
    setSceneContext(view, nullptr, QString(), nullptr);
    setSceneColors(view, colors);
    QCOMPARE(readerOf(view)->hostColors(), colors);
}

QTEST_MAIN(tst_sceneContext)
#include "tst_sceneContext.moc"
