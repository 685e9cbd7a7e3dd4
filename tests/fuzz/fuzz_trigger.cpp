// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A trigger as a person types it.

#include "host/files/TriggerText.h"
#include "tests/fuzz/Fuzz.h"

using namespace gesturewidget;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers;
    if (!parseTrigger(QString::fromUtf8(fuzz::bytes(data, size)), button, modifiers)) {
        fuzz::check(button == Qt::NoButton && modifiers == Qt::NoModifier,
                    "a refused text sets nothing");
        return 0;
    }
    const QString text = triggerText(button, modifiers);
    Qt::MouseButton sameButton = Qt::NoButton;
    Qt::KeyboardModifiers sameModifiers;
    fuzz::check(!text.isEmpty() && parseTrigger(text, sameButton, sameModifiers),
                "a trigger has a text");
    fuzz::check(sameButton == button && sameModifiers == modifiers, "the text means the same trigger");
    return 0;
}
