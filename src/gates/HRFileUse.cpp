// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRFileUse_p.h"

#include "files/HRRegularFile_p.h"

#include <QFile>

namespace Hintreels {

namespace {

// The name of its kind stands within the first bytes of a WebM file.
constexpr qint64 signatureSize = 64;

QByteArray headOf(const QString &path)
{
    QFile file;
    return openRegularFile(file, path) ? file.read(signatureSize) : QByteArray();
}

bool isPicture(const QByteArray &head)
{
    return head.startsWith("\x89PNG\r\n\x1A\n") || head.startsWith("\xFF\xD8\xFF");
}

bool isMp4(const QByteArray &head)
{
    // QuickTime's own files may refer to others.
    return head.mid(4, 4) == "ftyp" && head.mid(8, 4) != "qt  ";
}

bool isWebM(const QByteArray &head)
{
    return head.startsWith("\x1A\x45\xDF\xA3") && head.contains("webm");
}

bool isClip(const QByteArray &head)
{
    return isMp4(head) || isWebM(head) || head.startsWith("GIF87a") || head.startsWith("GIF89a");
}

bool isText(const QString &path)
{
    return path.endsWith(QLatin1String(".vtt")) || path.endsWith(QLatin1String(".qm"));
}

} // namespace

bool isFormatForStrangers(const QString &path, HRFileUse use)
{
    switch (use) {
    case HRFileUse::picture:
        return isPicture(headOf(path));
    case HRFileUse::clip:
        return isClip(headOf(path));
    case HRFileUse::text:
        return isText(path);
    case HRFileUse::any:
        break;
    }
    const QByteArray head = headOf(path);
    return isText(path) || isPicture(head) || isClip(head);
}

} // namespace Hintreels
