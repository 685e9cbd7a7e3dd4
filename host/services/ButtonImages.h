// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

namespace gesturewidget {

// Offers the images for dialog buttons that modules expect from a host: ok.png, cancel.png and
// help.png in ":/images/shared/". If the program has one of them, its own is used. A second call
// has no effect.
void provideButtonImages();

} // namespace gesturewidget
