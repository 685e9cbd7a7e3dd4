// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <QString>

// The host's string: a value that converts to and from QString.
class GESTUREWIDGET_SDK_EXPORT CHxString
{
public:
    CHxString() = default;
    // `text` is a null-terminated ASCII literal. Null makes an empty string.
    CHxString(const char *text);
    // `text` is a null-terminated wide-character literal. Null makes an empty string.
    CHxString(const wchar_t *text);
    CHxString(const QString &text);

    [[nodiscard]] const QString &toQString() const { return m_text; }
    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }
    // Returns a number below 0 when this string sorts before `other`, 0 when they are equal, and a
    // number above 0 when it sorts after. Case-sensitive.
    [[nodiscard]] int Compare(const CHxString &other) const;
    // The same, ignoring letter case.
    [[nodiscard]] int CompareNoCase(const CHxString &other) const;

    friend bool operator==(const CHxString &a, const CHxString &b) { return a.m_text == b.m_text; }
    friend bool operator!=(const CHxString &a, const CHxString &b) { return !(a == b); }

private:
    QString m_text;
};
