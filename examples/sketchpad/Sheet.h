#pragma once

#include "examples/sketchpad/Entity.h"

#include <QMap>
#include <QVector>

#include <vector>

// All that a drawing file holds.
struct Sheet
{
    struct Layer
    {
        int color = 7;
        QString lineType = QStringLiteral("CONTINUOUS");
        int width = -3; // in hundredths of a millimetre; -3 is the reader's default
        int flags = 0; // 1 frozen, 4 locked
        bool off = false;
        [[nodiscard]] bool isVisible() const { return !off && !(flags & 1); }
    };

    std::vector<Entity> entities;
    QMap<QString, Layer> layers{{QStringLiteral("0"), {}}};
    // Lengths of dashes (positive), gaps (negative) and dots (0), in drawing units.
    QMap<QString, QVector<double>> lineTypes{{QStringLiteral("CONTINUOUS"), {}}};
    int units = 0; // as $INSUNITS counts them: 0 none, 1 inches, 4 millimetres, 6 metres
    // What the file held besides, and how often: it would be lost if the file was replaced.
    QMap<QString, int> unread;
    int polylines = 0; // how many were read as single lines and arcs
};
