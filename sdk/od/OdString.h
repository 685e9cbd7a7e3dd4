// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QString>

// The code page identifier of 8-bit literals that are passed to the platform: Windows-1252. All
// such literals are plain ASCII.
constexpr int kOdAnsiCodePage = 45;

// The platform's string: a value that converts to and from QString.
class GESTUREWIDGET_SDK_EXPORT OdString
{
public:
    OdString() = default;
    // `text` is a null-terminated 8-bit string. Null makes an empty string. `codePage` is
    // kOdAnsiCodePage.
    OdString(const char *text, int codePage);
    // `text` is a null-terminated wide string. Null makes an empty string.
    explicit OdString(const wchar_t *text);
    explicit OdString(const QString &text);

    [[nodiscard]] const QString &toQString() const { return m_text; }
    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }

    friend bool operator==(const OdString &a, const OdString &b) { return a.m_text == b.m_text; }
    friend bool operator!=(const OdString &a, const OdString &b) { return !(a == b); }

private:
    QString m_text;
};
