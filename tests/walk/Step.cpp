// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/walk/Step.h"

namespace tests {

std::ostream &operator<<(std::ostream &out, const Step &step)
{
    static const char *const names[] = {
        "Move",        "Press",    "Release",        "DoubleClick",  "KeyPress",   "KeyRepeat",
        "KeyRelease",  "Wheel",    "SwitchGestures", "SwitchScheme", "ShowDialog", "ShowPopup",
        "ReplaceView", "HideRing", "DestroyRing",    "Cancel",       "PostedMove"};
    return out << names[step.kind] << " at " << step.position.x() << ',' << step.position.y()
               << " button " << int(step.button) << " buttons " << int(step.buttons) << " key "
               << step.key << " modifiers " << int(step.modifiers);
}

} // namespace tests
