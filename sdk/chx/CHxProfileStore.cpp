// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxProfileStore.h"

CHxProfileStore::~CHxProfileStore() = default;
