// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OwnCode.h"

namespace gesturewidget::codemark {
namespace {

CodeMark unseen{0};

} // namespace

CodeMark *current = &unseen;

void keepAt(CodeMark *place)
{
    CodeMark *next = place ? place : &unseen;
    next->store(current->load(std::memory_order_relaxed), std::memory_order_relaxed);
    current = next;
}

} // namespace gesturewidget::codemark
