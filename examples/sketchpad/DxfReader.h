// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Sheet.h"

#include <dxflib/dl_creationadapter.h>

// Builds a sheet from what dxflib reads.
class DxfReader : public DL_CreationAdapter
{
public:
    [[nodiscard]] const Sheet &sheet() const { return m_sheet; }

    void addLayer(const DL_LayerData &data) override;
    void addLinetype(const DL_LinetypeData &data) override;
    void addLinetypeDash(double length) override;
    void addLine(const DL_LineData &data) override;
    void addArc(const DL_ArcData &data) override;
    void addCircle(const DL_CircleData &data) override;
    void addText(const DL_TextData &data) override;
    void addPolyline(const DL_PolylineData &data) override;
    void addVertex(const DL_VertexData &data) override;
    void endEntity() override { endSequence(); }
    void endSequence() override;

private:
    void add(Entity entity);

    Sheet m_sheet;
    QVector<double> m_dashes;
    std::vector<DL_VertexData> m_vertices;
    bool m_isClosed = false;
};
