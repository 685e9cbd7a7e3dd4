// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/HostApplication.h"

namespace gesturewidget {

HostApplication::HostApplication() = default;
HostApplication::~HostApplication() = default;

} // namespace gesturewidget
