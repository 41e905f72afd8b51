// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// What the reader's decisions do to a popup.
#include "ui/popup/HRWidgetPrivate_p.h"

#include "context/setting_p.h"
#include "reader/readerSettings_p.h"
#include "ui/popup/sceneContext_p.h"
#include "ui/reader/HRUiWords_p.h"

namespace Hintreels {

/// 0 for a popup that is to stay.
double HRWidgetPrivate::hideDelay() const
{
    if (stays() || readerMenu.isOpen())
        return 0.0;
    const HRReaderSettings *reader = readerSettings(settings());
    if (reader && reader->duration() >= 0)
        return reader->duration();
    return double(setting(settings(), hideDelayKey, 3000.0F));
}

/// A popup that does not show has time to follow when it does.
void HRWidgetPrivate::awaitDecisions()
{
    if (const HRReaderSettings *reader = readerSettings(settings()))
        readerDecided
            = QObject::connect(reader, &HRReaderSettings::changed, q, [this] { takeDecision(); });
}

void HRWidgetPrivate::takeDecision()
{
    const HRReaderSettings *reader = readerSettings(settings());
    if (reader && !reader->areHintsShown())
        q->hide();
    else
        takeInContent();
}

void HRWidgetPrivate::beginSmall()
{
    smallStart.stop(); // of the hint before
    const HRReaderSettings *reader = readerSettings(settings());
    if (reader && reader->beginsSmall(shownKey()) && !reserved)
        smallStart.start();
    else
        countSeen();
}

QString HRWidgetPrivate::shownKey() const
{
    const HRXmlElement *content = view ? view->content() : nullptr;
    return content ? content->attribute(QStringLiteral("key")) : QString();
}

void HRWidgetPrivate::countSeen()
{
    HRReaderSettings *reader = readerSettings(settings());
    if (reader && reader->detail() != HRReaderSettings::summaryDetail)
        reader->countSeen(shownKey());
}

/// Who asks for more or less sees all that there is first. The hint stays for as long as its menu.
void HRWidgetPrivate::followMenu()
{
    if (readerMenu.isOpen())
        smallStart.end();
    if (q->isVisible() && !reserved)
        keepTime();
}

QString HRWidgetPrivate::word(const QString &text) const
{
    HRUiWords words;
    return words.word(manager ? manager->currentLocale() : QLocale(), text);
}

void HRWidgetPrivate::grow()
{
    if (!view)
        return;
    growScene(*view);
    takeInContent();
    countSeen();
}

} // namespace Hintreels
