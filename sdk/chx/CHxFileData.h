// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

// Facts about a drawing's file.
class CHxFileData
{
public:
    // The kind of a drawing's file: a drawing, a template for new drawings, or a file for exchange
    // with other programs.
    enum FileType { kUnknown = 0, kDrawing, kTemplate, kExchange };
};
