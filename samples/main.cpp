// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/DxfFile.h"
#include "samples/Drawings.h"

#include <QCoreApplication>

#include <iostream>

// Writes the sample drawings: draw-samples FOLDER
int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: draw-samples FOLDER\n";
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QString error;
    if (dxf::write(samples::bracket(), folder + QLatin1String("/bracket.dxf"), &error)
        && dxf::write(samples::floorPlan(), folder + QLatin1String("/floor-plan.dxf"), &error))
        return 0;
    std::cerr << "draw-samples: " << qPrintable(error) << '\n';
    return 1;
}
