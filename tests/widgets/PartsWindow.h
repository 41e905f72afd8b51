// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui_PartsWindow.h"

#include <QGraphicsScene>
#include <QLabel>

/// A window with parts of every kind.
class PartsWindow : public QMainWindow
{
public:
    PartsWindow();

    Ui::PartsWindow ui;
    QGraphicsScene scene; ///< a square with the key "shape", on one that is larger
    QLabel *zoom; ///< in the status bar
};

/// A place to rest the pointer on.
struct Spot
{
    QWidget *widget; ///< that the positions are in
    QPoint position;
    QRect area = {}; ///< of the part there; null for the whole of the innermost widget

    QPoint global() const { return widget->mapToGlobal(position); }
    QRect globalArea() const;
    QWidget *innermost() const;
};

/// One kind of part, and the keys under which its content is looked for.
struct PartCase
{
    const char *name;
    Spot (*spot)(PartsWindow &window); ///< opens what has to be open
    QStringList keys;
};

/// A row for each kind.
const QVector<PartCase> &partCases();
