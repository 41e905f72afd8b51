// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// A regular file in memory, under a path of this process, as long as this lives.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &content);
    ~MemoryFile();
    Q_DISABLE_COPY(MemoryFile)

    QString path() const;

private:
    int m_descriptor;
};

/// Bytes that end where a page does that nobody may read: a step behind them ends the program,
/// also in code that no sanitizer has seen.
class FencedBytes
{
public:
    explicit FencedBytes(const QByteArray &content);
    ~FencedBytes();
    Q_DISABLE_COPY(FencedBytes)

    const uchar *data() const { return m_data; }
    int size() const { return m_size; }

private:
    void *m_pages;
    size_t m_length; // of the readable pages and the fence
    uchar *m_data;
    int m_size;
};
