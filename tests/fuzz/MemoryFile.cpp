// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/MemoryFile.h"

#include <cstring>

#include <sys/mman.h>
#include <unistd.h>

MemoryFile::MemoryFile(const QByteArray &content)
    : m_descriptor(::memfd_create("input", MFD_CLOEXEC))
{
    if (::write(m_descriptor, content.constData(), size_t(content.size())) != content.size())
        qFatal("cannot write a file in memory");
}

MemoryFile::~MemoryFile()
{
    ::close(m_descriptor);
}

QString MemoryFile::path() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor);
}

FencedBytes::FencedBytes(const QByteArray &content)
    : m_size(content.size())
{
    const size_t page = size_t(::sysconf(_SC_PAGESIZE));
    const size_t readable = (size_t(m_size) + page - 1) / page * page;
    m_length = readable + page;
    m_pages = ::mmap(nullptr, m_length, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (m_pages == MAP_FAILED)
        qFatal("cannot map memory");
    uchar *fence = static_cast<uchar *>(m_pages) + readable;
    ::mprotect(fence, page, PROT_NONE);
    m_data = fence - m_size;
    std::memcpy(m_data, content.constData(), size_t(m_size));
}

FencedBytes::~FencedBytes()
{
    ::munmap(m_pages, m_length);
}
