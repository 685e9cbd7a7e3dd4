// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

class QByteArray;

// Opens two windows, then does what `mode` says.
int runTwoWindows(int argc, char **argv, const QByteArray &mode);
// A start window gives way to the real one.
int runReplacedWindow(int argc, char **argv, const QByteArray &mode);
