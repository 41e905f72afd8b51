// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/SignalCounter.h"
#include "support/TestClip.h"
#include "ui/popup/HRView.h"
#include "video/HRVideoComponent.h"

#include <QPainter>
#include <QTemporaryDir>

/// A view whose content has one resource: the file that every source then is.
struct ItemStage
{
    explicit ItemStage(const QString &file = QString(), Hintreels::HRManager *manager = nullptr)
        : view(manager, nullptr)
    {
        auto *content = new Hintreels::HRXmlElement;
        content->setAttribute("resources", file);
        view.setContent(content);
        item = new Hintreels::HRVideoComponent(view.contentItem());
        announced.reset(new SignalCounter(item, &Hintreels::HRVideoComponent::loadProgressChanged));
    }

    void setFile(const QString &file)
    {
        view.content()->setAttribute("resources", file);
        announced->clear();
        item->setSource("clip");
    }

    /// Setting the source, opening it and its end have announced themselves.
    bool isDecoded() const { return announced->count() == 3; }

    /// What the item paints; transparent where it paints nothing.
    QImage painted()
    {
        QImage image(64, 48, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        item->paint(&painter);
        return image;
    }

    bool paintsNothing() { return qAlpha(painted().pixel(0, 0)) == 0; }
    int number() { return paintsNothing() ? -1 : TestClip::numberOf(painted()); }

    Hintreels::HRView view;
    Hintreels::HRVideoComponent *item;
    QScopedPointer<SignalCounter> announced;
};

/// Clips in a temporary folder, whose pictures tell their numbers.
class NumberedClips
{
public:
    /// @param first the number of the first picture
    /// @return path of the new clip
    QString write(const QString &name, int first, int pictures, const QSize &size = QSize(64, 48),
        int rate = 50)
    {
        TestClip encoded;
        encoded.size = size;
        encoded.pictures = pictures;
        encoded.rate = rate;
        return encoded.write(filePath(name), [first](const QSize &pictureSize, int number) {
            return TestClip::numbered(pictureSize, first + number);
        });
    }

    QString path() const { return m_directory.path(); }
    QString filePath(const QString &name) const { return m_directory.filePath(name); }

private:
    QTemporaryDir m_directory;
};
