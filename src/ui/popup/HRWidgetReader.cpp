// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// What the reader's decisions do to a popup.
#include "ui/popup/HRWidgetPrivate_p.h"

#include "context/setting_p.h"
#include "reader/readerSettings_p.h"
#include "ui/popup/sceneContext_p.h"

namespace Hintreels {

/// 0 for a popup that is to stay.
double HRWidgetPrivate::hideDelay() const
{
    if (stays())
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
    const HRReaderSettings *reader = readerSettings(settings());
    if (reader && reader->startsSmall() && !reserved)
        smallStart.start();
}

void HRWidgetPrivate::grow()
{
    if (!view)
        return;
    growScene(*view);
    takeInContent();
}

} // namespace Hintreels
