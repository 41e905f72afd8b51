// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRContent_p.h"

#include <utility>

namespace Hintreels {

namespace {

bool isRootOfOne(const HRXmlElement *element)
{
    return element && element->getTagName() == QLatin1String("hintreels")
        && element->children().size() == 1;
}

} // namespace

HRContent::HRContent(HRXmlElement *entry, QObject *root)
    : m_entry(entry)
    , m_root(root)
{
}

HRContent HRContent::of(HRXmlElement *entry)
{
    auto *parent = entry ? qobject_cast<HRXmlElement *>(entry->parent()) : nullptr;
    return HRContent(entry, isRootOfOne(parent) ? parent : nullptr);
}

HRContent::HRContent(HRContent &&other) noexcept
    : m_entry(std::exchange(other.m_entry, nullptr))
    , m_root(std::exchange(other.m_root, nullptr))
{
}

HRContent &HRContent::operator=(HRContent &&other) noexcept
{
    HRContent previous(std::move(other)); // frees at the end what this has held
    m_entry.swap(previous.m_entry);
    m_root.swap(previous.m_root);
    return *this;
}

HRContent::~HRContent()
{
    delete tree();
}

HRXmlElement *HRContent::release()
{
    m_root.clear();
    return std::exchange(m_entry, nullptr);
}

void HRContent::freeLater()
{
    if (QObject *content = tree())
        content->deleteLater();
    release();
}

QObject *HRContent::tree() const
{
    const bool isInTree = m_entry && m_root && m_entry->parent() == m_root;
    return isInTree ? m_root.data() : m_entry.data();
}

} // namespace Hintreels
