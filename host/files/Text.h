// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace gesturewidget {

// For texts about files that a person reads: Text::tr("..."). They are in the context "host". Names
// of files, keys and options are not translated.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(host)
};

} // namespace gesturewidget
