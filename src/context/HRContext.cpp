// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/HRContext.h"

HRContext::HRContext(QObject *parent)
    : QObject(parent)
{
    // Spies and queued connections find the signals' parameter type by its written name.
    qRegisterMetaType<HRContextKey>("HRContextKey");
}

HRContext::HRContext(const HRContext &other)
    : QObject(nullptr)
    , m_settings(other.m_settings)
{
}

HRContext &HRContext::operator=(const HRContext &other)
{
    m_settings = other.m_settings;
    return *this;
}

HRContext::~HRContext() = default;

QVariant HRContext::get(const int &key, const QVariant &defaultValue) const
{
    return m_settings.value(key, defaultValue);
}

void HRContext::set(const int &key, const QVariant &value)
{
    Q_EMIT settingWillChange(key);
    m_settings.insert(key, value);
    Q_EMIT settingDidChange(key);
}

bool HRContext::contains(const int &key)
{
    return m_settings.contains(key);
}

QList<int> HRContext::keys()
{
    return m_settings.keys();
}
