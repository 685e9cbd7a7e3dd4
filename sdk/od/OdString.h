#pragma once

#include "sdk/SdkExport.h"

#include <QString>

// Code page identifier of 8-bit literals handed to the platform (Windows-1252, of which
// every literal in use needs only the ASCII part).
constexpr int kOdAnsiCodePage = 45;

// The platform's string: a value that converts from and to QString.
class SDK_EXPORT OdString
{
public:
    OdString() = default;
    // `text` is a null-terminated 8-bit string in the code page; null makes an empty string.
    OdString(const char *text, int codePage);
    // `text` is a null-terminated wide string; null makes an empty string.
    explicit OdString(const wchar_t *text);
    explicit OdString(const QString &text);

    [[nodiscard]] const QString &toQString() const { return m_text; }
    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }

    friend bool operator==(const OdString &a, const OdString &b) { return a.m_text == b.m_text; }
    friend bool operator!=(const OdString &a, const OdString &b) { return !(a == b); }

private:
    QString m_text;
};
