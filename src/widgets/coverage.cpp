// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/coverage_p.h"

#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partName_p.h"
#include "widgets/parts/partPlace_p.h"
#include "widgets/parts/tabParts_p.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QSet>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBox>

#include <algorithm>

namespace Hintreels {

namespace {

template <class... Types>
bool isOneOf(const QObject *object)
{
    return (qobject_cast<const Types *>(object) || ...);
}

/// What Qt has put into a widget is no part, but for what opens its pages.
bool isQtsOwn(QWidget *widget)
{
    if (isPiece(widget) || qobject_cast<const QTabBar *>(widget) || toolBoxPageOf(widget))
        return isPiece(widget);
    const bool isNamed = !nameOf(widget).isEmpty() || !keyOf(widget).isEmpty();
    const bool isCorner = qobject_cast<const QAbstractButton *>(widget)
        && qobject_cast<const QAbstractItemView *>(widget->parent());
    return !isNamed && (isCorner || !widget->objectName().isEmpty());
}

bool isInteractive(const QWidget *widget)
{
    if (isOneOf<QTabWidget, QScrollArea, QMdiArea>(widget))
        return false;
    return isOneOf<QAbstractButton, QMenu, QMenuBar, QTabBar, QHeaderView>(widget)
        || widget->focusPolicy() != Qt::NoFocus;
}

bool isPage(const QWidget *widget)
{
    return isOneOf<QStackedWidget, QToolBox>(widget->parent());
}

/// Goes through a window once. What models do meanwhile may delete any of it.
class Walk
{
public:
    QVector<HRWalkedPart> parts;

    void visit(const QPointer<QWidget> &widget)
    {
        if (!isQtsOwn(widget))
            take(widget);
        // What these are made of is Qt's.
        if (!widget || isOneOf<QTabBar, QLineEdit, QComboBox, QAbstractSpinBox, QMenuBar>(widget))
            return;
        const auto children
            = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const QVector<QPointer<QWidget>> guarded(children.begin(), children.end());
        for (const QPointer<QWidget> &inner : guarded) {
            if (inner && !inner->isWindow() && (!inner->isHidden() || isPage(inner)))
                visit(inner);
        }
    }

private:
    void take(QWidget *widget)
    {
        const bool isUsed = isInteractive(widget);
        const QVector<HRPart> found = partsOf(widget);
        for (const HRPart &part : found) {
            parts.append({ part, isUsed });
            QMenu *menu = part.action ? part.action->menu() : nullptr;
            if (menu && !m_menus.contains(menu)) {
                m_menus.insert(menu);
                take(menu);
            }
        }
    }

    QSet<QMenu *> m_menus;
};

HRCoveredPart covered(const HRPart &part, const QStringList &keys)
{
    return { part.widget, part.widget->isVisible() ? part.area : QRect(), part.text, keys };
}

/// The keys that are shared by parts of more than one action, or of none.
QMap<QString, QVector<HRCoveredPart>> shared(const QMap<QString, QVector<HRPart>> &users)
{
    QMap<QString, QVector<HRCoveredPart>> result;
    for (auto it = users.begin(); it != users.end(); ++it) {
        const auto isOther
            = [&](const HRPart &part) { return !part.action || part.action != it->first().action; };
        if (it->size() < 2 || std::none_of(it->begin(), it->end(), isOther))
            continue;
        for (const HRPart &part : *it)
            result[it.key()].append(covered(part, keysOf(part)));
    }
    return result;
}

} // namespace

QVector<HRWalkedPart> walkParts(QWidget *window)
{
    Walk walk;
    walk.visit(window);
    return walk.parts;
}

HRCoverage coverageOf(const QVector<HRWalkedPart> &parts, const QStringList &keys)
{
    const QSet<QString> known(keys.begin(), keys.end());
    HRCoverage coverage;
    QSet<QString> asked;
    QMap<QString, QVector<HRPart>> users;
    for (const HRWalkedPart &walked : parts) {
        if (!walked.part.widget)
            continue;
        const QStringList candidates = keysOf(walked.part);
        const auto hit = std::find_if(candidates.begin(), candidates.end(),
            [&](const QString &key) { return known.contains(key); });
        if (hit != candidates.end())
            asked.insert(*hit);
        const QStringList around = keysAround(walked.part);
        for (const QString &key : around)
            asked.insert(key);
        if (!walked.isInteractive)
            continue;
        if (hit != candidates.end())
            users[*hit].append(walked.part);
        else
            (candidates.isEmpty() ? coverage.nameless : coverage.withoutHint)
                .append(covered(walked.part, candidates));
    }
    coverage.shared = shared(users);
    coverage.unusedKeys = (known - asked).values();
    coverage.unusedKeys.sort();
    return coverage;
}

} // namespace Hintreels
