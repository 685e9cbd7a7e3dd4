// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdResBuf.h"

#include "OdRxObjectImpl.h"

OdResBuf::~OdResBuf() = default;

OdResBufPtr OdResBuf::newString(const OdString &text)
{
    OdResBufPtr buffer(new OdRxObjectImpl<OdResBuf>, kOdRxAttach);
    buffer->setString(text);
    return buffer;
}

void OdResBuf::setString(const OdString &text)
{
    m_type = kString;
    m_string = text;
}
