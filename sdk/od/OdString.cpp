// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdString.h"

OdString::OdString(const char *text, int codePage)
    : m_text(QString::fromLatin1(text))
{
    Q_UNUSED(codePage) // only one is in use, and its ASCII part equals Latin-1
}

OdString::OdString(const wchar_t *text)
    : m_text(text ? QString::fromWCharArray(text) : QString())
{
}

OdString::OdString(const QString &text)
    : m_text(text)
{
}
