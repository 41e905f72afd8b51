// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "manager/HRManager.h"
#include "support/ClipThreads.h"
#include "support/MessageGuard.h"
#include "support/RecordingHost.h"
#include "support/TestPackage.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QBuffer>
#include <QImage>
#include <QQuickItem>
#include <QtTest>

#include <memory>

/// A host whose translations a test gives, one text for another.
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

/// A picture file of 200 x 100 pixels.
inline QByteArray png()
{
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// In breadth first order; what a Repeater makes is no child of any object.
inline QList<QQuickItem *> itemsBelow(QQuickItem *item)
{
    QList<QQuickItem *> items{ item };
    for (int i = 0; i < items.size(); ++i)
        items += items[i]->childItems();
    return items;
}

/// A host with the standard UI and one package that uses it.
struct StandardUiFixture
{
    explicit StandardUiFixture(const QByteArray &entries, const QByteArray &locale = "en_US")
    {
        packages.writeControl(
            "Test", "test.xml", entries, "search=\"Standard\" locale=\"" + locale + "\"");
        packages.write("Test.hintreels/Resources/good.png", png());
        packages.write("Test.hintreels/Resources/broken.png", png().left(60));
        context.set(Hintreels::localeKey, QString(locale));
        context.set(Hintreels::hideDelayKey, 0); // never: the pointer is not near
        context.set(Hintreels::allowNamedResourcesKey, true);
    }

    /// The offscreen platform has messages of its own; those of QML fail the test, also the last
    /// ones that are written while the popup goes.
    ~StandardUiFixture()
    {
        host.reset();
        delete popup;
        // What its clips' threads say on their way out comes before the packages go.
        if (!QTest::qWaitFor([this] { return clipThreads().size() <= threadsOfOthers; }))
            QTest::qFail("threads of clips outlive the popup", __FILE__, __LINE__);
        const QStringList messages = guard.takeMessages().filter(".qml");
        if (!messages.isEmpty())
            QTest::qFail(qPrintable(messages.join(" | ")), __FILE__, __LINE__);
    }

    /// Makes the host; settings are changed before that.
    void start()
    {
        host = std::make_unique<TranslatingHost>(
            context, QStringList{ packages.path(), HINTREELS_SOURCE_DIR "/packages" });
        host->context().set(Hintreels::messageLevelKey, int(Hintreels::messageDebug));
    }

    /// Shows a key, and makes the host if need be.
    void show(const QString &key = "key")
    {
        if (!host)
            start();
        host->translations = translations;
        QVERIFY(host->show(key, QPoint(50, 50), nullptr));
        popup = host->manager()->widget();
        QVERIFY(root());
        sizeAtOnce = root()->size();
        QCoreApplication::processEvents();
    }

    Hintreels::HRView *view() const { return popup->view(); }
    QQuickItem *root() const { return view()->rootObject(); }
    QQuickItem *find(const QString &name) const
    {
        const auto candidates = itemsBelow(root());
        for (QQuickItem *candidate : candidates) {
            if (candidate->objectName() == name)
                return candidate;
        }
        return nullptr;
    }
    bool hasItem(const QString &name) const { return find(name); }
    QQuickItem *item(const QString &name) const
    {
        QQuickItem *found = find(name);
        if (!found)
            qFatal("there is no item %s", qPrintable(name));
        return found;
    }
    QString text(const QString &name) const { return item(name)->property("text").toString(); }

    /// Waits for the blocks below those that the popup shows at first.
    void makeAll() const
    {
        const QQuickItem *blocks = item("blocks");
        const auto *hint = blocks->property("hint").value<QObject *>();
        QTRY_COMPARE(blocks->property("made").toInt(), hint->property("blocks").toList().size());
    }

    /// Waits until the popup is painted anew, and with that all is in its place.
    void paint() const
    {
        QSignalSpy painted(view(), &QQuickWindow::frameSwapped);
        view()->update();
        QTRY_VERIFY(!painted.isEmpty());
    }

    void click(const QQuickItem *target) const
    {
        const QPointF center
            = target->mapToScene(QPointF(target->width() / 2, target->height() / 2));
        QTest::mouseClick(view(), Qt::LeftButton, {}, center.toPoint());
    }

    QStringList troubles() const
    {
        QStringList found = host->takeMessages(Hintreels::messageDebug);
        found += host->takeMessages(Hintreels::messageWarning)
            + host->takeMessages(Hintreels::messageError);
        return found;
    }

    const int threadsOfOthers = clipThreads().size(); ///< of a fixture around this one
    MessageGuard guard;
    TestPackages packages;
    HRContext context;
    QMap<QString, QString> translations;
    std::unique_ptr<TranslatingHost> host;
    QPointer<Hintreels::HRWidget> popup;
    QSizeF sizeAtOnce; ///< the content's size before any event was handled
};
