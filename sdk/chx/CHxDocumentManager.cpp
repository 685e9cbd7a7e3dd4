// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxDocumentManager.h"

CHxDocumentIterator::~CHxDocumentIterator() = default;

CHxDocumentManager::~CHxDocumentManager() = default;
