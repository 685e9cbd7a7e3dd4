// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxDocument.h"

CHxDocument::~CHxDocument() = default;
