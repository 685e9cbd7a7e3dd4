// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxHitTestInfo.h"
#include "tests/fakehost/CallLog.h"

namespace tests {

// A hit test whose answers are plain members; every query and notification is noted in
// `log` under its name without "Is" and "Get", such as "Press" or "NotifyDrag".
class FakeHitTest : public CHxHitTestInfo
{
public:
    [[nodiscard]] QPoint GetPosition() const override { return altered(note("Position"), position); }
    [[nodiscard]] CHxDocument *GetDocument() const override
    {
        return altered(note("Document"), document);
    }
    [[nodiscard]] bool IsModalWindowOpen() const override
    {
        return altered(note("ModalWindowOpen"), suppressed[0]);
    }
    [[nodiscard]] bool IsPopupOpen() const override { return altered(note("PopupOpen"), suppressed[1]); }
    [[nodiscard]] bool IsMouseGrabbed() const override
    {
        return altered(note("MouseGrabbed"), suppressed[2]);
    }
    [[nodiscard]] bool IsOtherButtonDown() const override
    {
        return altered(note("OtherButtonDown"), suppressed[3]);
    }
    [[nodiscard]] bool IsModifierMismatch() const override
    {
        return altered(note("ModifierMismatch"), suppressed[4]);
    }
    [[nodiscard]] bool IsOverControl() const override
    {
        return altered(note("OverControl"), suppressed[5]);
    }
    [[nodiscard]] bool IsViewBlocked() const override
    {
        return altered(note("ViewBlocked"), suppressed[6]);
    }
    [[nodiscard]] bool IsPress() const override { return altered(note("Press"), press); }
    [[nodiscard]] bool IsMotion() const override { return altered(note("Motion"), motion); }
    [[nodiscard]] bool IsButtonHeld() const override { return altered(note("ButtonHeld"), buttonHeld); }
    void NotifyDrag() override { note("NotifyDrag"); }
    void NotifyEnd() override { note("NotifyEnd"); }

    QPoint position;
    CHxDocument *document = nullptr;
    // The seven suppression queries in the order in which they are asked.
    bool suppressed[7] = {};
    bool press = false;
    bool motion = false;
    bool buttonHeld = false;
    mutable CallLog log;

private:
    Misdeed note(const char *call) const { return log.add(QString::fromLatin1(call)); }
};

} // namespace tests
