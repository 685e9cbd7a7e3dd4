// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxString.h"

CHxString::CHxString(const char *text)
    : m_text(QString::fromLatin1(text))
{
}

CHxString::CHxString(const wchar_t *text)
    : m_text(text ? QString::fromWCharArray(text) : QString())
{
}

CHxString::CHxString(const QString &text)
    : m_text(text)
{
}

int CHxString::Compare(const CHxString &other) const
{
    return m_text.compare(other.m_text);
}

int CHxString::CompareNoCase(const CHxString &other) const
{
    return m_text.compare(other.m_text, Qt::CaseInsensitive);
}
