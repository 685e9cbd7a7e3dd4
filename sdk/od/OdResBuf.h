// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OdRxObject.h"
#include "OdSmartPtr.h"
#include "OdString.h"

// A result buffer: one typed value that is passed into or out of the host.
//
//     OdSmartPtr<OdResBuf> value = OdResBuf::newString(OdString(text));
//     store->Set(section, key, value.get());
class GESTUREWIDGET_SDK_EXPORT OdResBuf : public OdRxObject
{
public:
    // Type codes. The platform fixes the numbers.
    enum Type : int { kNone = 5000, kString = 5005 };

    ~OdResBuf() override;

    // Returns a new string buffer. The returned pointer holds its only reference.
    [[nodiscard]] static OdSmartPtr<OdResBuf> newString(const OdString &text);

    [[nodiscard]] int restype() const { return m_type; }
    // The string. Empty unless restype() is kString.
    [[nodiscard]] const OdString &getString() const { return m_string; }
    // Stores `text` and sets the type to kString.
    void setString(const OdString &text);

protected:
    OdResBuf() = default;

private:
    int m_type = kNone;
    OdString m_string;
};

using OdResBufPtr = OdSmartPtr<OdResBuf>;
