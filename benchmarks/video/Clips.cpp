// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"

#include "VideoFigures.h"
#include "support/TestClip.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QtMath>

#include <map>
#include <memory>
#include <random>

namespace {

constexpr unsigned seed = 20260601;

/// A window with a tool bar and text, in which lines are typed, a menu opens now and then, and the
/// pointer goes about.
class Screen
{
public:
    explicit Screen(const QSize &size)
        : m_size(size)
        , m_background(size, QImage::Format_RGB32)
        , m_random(seed)
    {
        m_background.fill(QColor(246, 246, 244));
        QPainter painter(&m_background);
        painter.fillRect(0, 0, size.width(), 40, QColor(222, 224, 228));
        for (int x = 8; x + 28 < size.width(); x += 36)
            painter.fillRect(x, 6, 28, 28, QColor::fromHsv(x * 7 % 360, 90, 200));
        for (int y = 60; y + 8 < size.height(); y += 16)
            drawLine(&painter, y, int(m_random() % unsigned(size.width() / 2)));
    }

    QImage picture(int number)
    {
        QImage image = m_background;
        QPainter painter(&image);
        painter.fillRect(24, 60 + number / 40 * 16, number % 40 * 8, 10, QColor(40, 60, 160));
        if (number % 100 > 70)
            drawMenu(&painter);
        const double turn = number / 45.0;
        const QPointF pointer(m_size.width() * (0.5 + 0.35 * qSin(turn)),
            m_size.height() * (0.5 + 0.35 * qSin(turn * 1.7)));
        painter.setBrush(Qt::white);
        const QPointF arrow[] = { pointer, pointer + QPointF(0, 18), pointer + QPointF(13, 13) };
        painter.drawPolygon(arrow, 3);
        return image;
    }

private:
    void drawLine(QPainter *painter, int y, int length)
    {
        for (int x = 24; x < 24 + length; x += 9)
            painter->fillRect(x, y, int(m_random() % 7) + 1, 9, QColor(70, 70, 74));
    }

    void drawMenu(QPainter *painter) const
    {
        const QRect menu(60, 40, m_size.width() / 6, m_size.height() / 3);
        painter->fillRect(menu, Qt::white);
        for (int y = menu.top() + 8; y < menu.bottom() - 8; y += 18)
            painter->fillRect(menu.left() + 10, y, menu.width() / 2, 9, QColor(90, 90, 94));
    }

    QSize m_size;
    QImage m_background;
    std::mt19937 m_random;
};

/// A large field of coloured discs under a camera that never rests.
class Motion
{
public:
    explicit Motion(const QSize &size)
        : m_size(size)
        , m_field(size * 2, QImage::Format_RGB32)
    {
        m_field.fill(Qt::darkGray);
        std::mt19937 random(seed);
        QPainter painter(&m_field);
        painter.setPen(Qt::NoPen);
        for (int i = 0; i < 9000; ++i) {
            painter.setBrush(QColor::fromRgb(random() | 0xff000000u));
            const int side = int(random() % 40) + 3;
            painter.drawEllipse(int(random() % unsigned(m_field.width())),
                int(random() % unsigned(m_field.height())), side, side);
        }
    }

    QImage picture(int number) const
    {
        const double turn = number / 25.0;
        const QPoint corner(int(m_size.width() * (0.5 + 0.49 * qSin(turn))),
            int(m_size.height() * (0.5 + 0.49 * qCos(turn * 1.3))));
        return m_field.copy(QRect(corner, m_size));
    }

private:
    QSize m_size;
    QImage m_field;
};

constexpr int rateClipSeconds = 5;

/// Where all clips lie until dropClips().
std::unique_ptr<QTemporaryDir> &directory()
{
    static std::unique_ptr<QTemporaryDir> directory;
    if (!directory)
        directory = std::make_unique<QTemporaryDir>();
    return directory;
}

std::map<QString, Clip> &clips()
{
    static std::map<QString, Clip> clips;
    return clips;
}

QString write(TestClip encoded, const QString &name, bool isScreen)
{
    encoded.options = "crf=20:preset=veryfast";
    Screen screen(encoded.size);
    const Motion motion(encoded.size);
    return encoded.write(directory()->filePath(name + ".mp4"), [&](const QSize &, int number) {
        return isScreen ? screen.picture(number) : motion.picture(number);
    });
}

} // namespace

const Clip &clipOf(const QSize &size, bool isScreen)
{
    const QString kind = isScreen ? "screen" : "motion";
    const QString name = QString("%1 %2x%3").arg(kind).arg(size.width()).arg(size.height());
    const auto found = clips().find(name);
    if (found != clips().end())
        return found->second;
    TestClip encoded;
    encoded.size = size;
    encoded.pictures = clipPictures;
    encoded.rate = clipRate;
    const QString path = write(encoded, name, isScreen);
    return clips().insert({ name, { name, path, size, isScreen } }).first->second;
}

QString writeClipAt(int rate, int seconds)
{
    TestClip encoded;
    encoded.size = SmallClip / 2;
    encoded.pictures = rateClipSeconds * rate / seconds;
    encoded.rate = rate;
    encoded.seconds = seconds;
    return write(encoded, QString("%1 in %2").arg(rate).arg(seconds), true);
}

QStringList copiedClips(int count)
{
    const Clip &clip = clipOf(SmallClip, true);
    QStringList copies;
    for (int i = 0; i < count; ++i) {
        copies += directory()->filePath(QString("copy %1.mp4").arg(i));
        QFile::copy(clip.path, copies.last());
    }
    return copies;
}

void dropClips()
{
    clips().clear();
    directory().reset();
}
