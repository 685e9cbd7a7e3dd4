// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Entity.h"

#include <QMap>
#include <QVector>

#include <vector>

// The contents of a drawing file.
struct Sheet
{
    struct Layer
    {
        int color = 7;
        QString lineType = QStringLiteral("CONTINUOUS");
        int width = -3; // in hundredths of a millimetre; -3 is the default width
        int flags = 0; // 1 frozen, 4 locked
        bool off = false;
        [[nodiscard]] bool isVisible() const { return !off && !(flags & 1); }
    };

    std::vector<Entity> entities;
    QMap<QString, Layer> layers{{QStringLiteral("0"), {}}};
    // Lengths of dashes (positive), gaps (negative) and dots (0), in drawing units.
    QMap<QString, QVector<double>> lineTypes{{QStringLiteral("CONTINUOUS"), {}}};
    int units = 0; // values of $INSUNITS: 0 none, 1 inches, 4 millimetres, 6 metres
    // Other kinds of objects in the file, with their count. Replacing the file would lose them.
    QMap<QString, int> unread;
    int polylines = 0; // number of polylines that were split into lines and arcs
};
