#pragma once

#include "sdk/SdkExport.h"

#include <QString>

// The host's string: a value that converts from and to QString.
class SDK_EXPORT CHxString
{
public:
    CHxString() = default;
    // A null-terminated 8-bit literal, ASCII; null makes an empty string.
    CHxString(const char *text);
    // A null-terminated wide-character literal; null makes an empty string.
    CHxString(const wchar_t *text);
    CHxString(const QString &text);

    [[nodiscard]] const QString &toQString() const { return m_text; }
    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }
    // Below, equal to or above 0 as this string sorts before, with or after the other.
    [[nodiscard]] int Compare(const CHxString &other) const;
    // The same with letter case ignored.
    [[nodiscard]] int CompareNoCase(const CHxString &other) const;

    friend bool operator==(const CHxString &a, const CHxString &b) { return a.m_text == b.m_text; }
    friend bool operator!=(const CHxString &a, const CHxString &b) { return !(a == b); }

private:
    QString m_text;
};
