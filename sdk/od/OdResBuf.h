#pragma once

#include "sdk/od/OdRxObject.h"
#include "sdk/od/OdSmartPtr.h"
#include "sdk/od/OdString.h"

// One typed value on its way into or out of the host, a result buffer.
//
//     OdSmartPtr<OdResBuf> value = OdResBuf::newString(OdString(text));
//     store->Set(section, key, value.get());
class SDK_EXPORT OdResBuf : public OdRxObject
{
public:
    // Type codes, the platform's numbers.
    enum Type : int { kNone = 5000, kString = 5005 };

    ~OdResBuf() override;

    // A new string buffer with one reference, which the returned pointer holds.
    [[nodiscard]] static OdSmartPtr<OdResBuf> newString(const OdString &text);

    [[nodiscard]] int restype() const { return m_type; }
    // The string, empty unless restype() is kString.
    [[nodiscard]] const OdString &getString() const { return m_string; }
    // Makes this a string buffer.
    void setString(const OdString &text);

protected:
    OdResBuf() = default;

private:
    int m_type = kNone;
    OdString m_string;
};

using OdResBufPtr = OdSmartPtr<OdResBuf>;
