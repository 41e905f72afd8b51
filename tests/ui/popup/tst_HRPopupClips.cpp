// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "video/HRVideoComponent.h"

#include <QQuickItem>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRPopupClips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void decoding_pauses_whileThePopupIsHidden();
    void decoding_pauses_forAClipThatIsSetWhileHidden();
    void decoding_goesOn_inAPopupThatWasNeverShown();
    void decoding_goesOn_whenTheItemLeavesAHiddenPopup();

private:
    QTemporaryDir m_directory;
    QString m_clip;
};

namespace {

constexpr int pictures = 150;

/// A view with one clip in it.
struct Screen
{
    explicit Screen(const QString &clip)
        : view(new HRView(nullptr, nullptr))
        , item(new HRVideoComponent(view->contentItem()))
    {
        auto *content = new HRXmlElement;
        content->setAttribute("resources", clip);
        view->setContent(content);
    }

    /// The number of pictures that are decoded: the position is clamped to them.
    int count() const
    {
        if (item->loadProgress() < 1.0)
            return 0;
        item->setPosition(std::numeric_limits<qint64>::max());
        return int(item->position()) + 1;
    }

    HRView *view;
    HRVideoComponent *item;
};

struct Popup : Screen
{
    explicit Popup(const QString &clip)
        : Screen(clip)
        , widget(nullptr, nullptr, nullptr)
    {
        widget.setView(view);
    }

    HRWidget widget;
};

/// Takes as long as it takes to decode the clip in a view that no popup holds.
void decodeElsewhere(const QString &clip)
{
    Screen elsewhere(clip);
    const std::unique_ptr<HRView> owner(elsewhere.view);
    elsewhere.item->setSource("clip");
    QTRY_COMPARE(elsewhere.count(), pictures);
}

} // namespace

void tst_HRPopupClips::initTestCase()
{
    TestClip encoded;
    encoded.size = QSize(640, 360);
    encoded.pictures = pictures;
    m_clip = encoded.write(m_directory.filePath("clip.mp4"));
}

void tst_HRPopupClips::decoding_pauses_whileThePopupIsHidden()
{
    Popup popup(m_clip);
    popup.widget.show();
    popup.item->setSource("clip");
    QTRY_VERIFY(popup.count() > 0);
    popup.widget.hide();
    const int hidden = popup.count();
    decodeElsewhere(m_clip);
    QVERIFY2(popup.count() <= hidden + 1, qPrintable(QString::number(popup.count())));
    QVERIFY(popup.count() < pictures);

    popup.widget.show();
    QTRY_COMPARE(popup.count(), pictures);
}

void tst_HRPopupClips::decoding_pauses_forAClipThatIsSetWhileHidden()
{
    Popup popup(m_clip);
    QVERIFY(!popup.view->isDecodingPaused());
    popup.widget.show();
    popup.widget.hide();
    QVERIFY(popup.view->isDecodingPaused());
    auto *late = new HRVideoComponent(popup.view->contentItem());
    late->setSource("clip");
    popup.item->setSource("clip");
    decodeElsewhere(m_clip);
    QCOMPARE(popup.count(), 0);
    QCOMPARE(late->loadProgress(), 0.0);

    popup.widget.show();
    QVERIFY(!popup.view->isDecodingPaused());
    QTRY_COMPARE(popup.count(), pictures);
    QTRY_COMPARE(late->loadProgress(), 1.0);
}

void tst_HRPopupClips::decoding_goesOn_inAPopupThatWasNeverShown()
{
    Popup popup(m_clip);
    popup.item->setSource("clip");
    QTRY_COMPARE(popup.count(), pictures);
}

void tst_HRPopupClips::decoding_goesOn_whenTheItemLeavesAHiddenPopup()
{
    Popup popup(m_clip);
    popup.widget.show();
    popup.widget.hide();
    popup.item->setSource("clip");
    HRView other(nullptr, nullptr);
    popup.item->setParentItem(other.contentItem());
    QTRY_COMPARE(popup.count(), pictures);
}

QTEST_MAIN(tst_HRPopupClips)
#include "tst_HRPopupClips.moc"
