#pragma once

// What the host says of a drawing's file.
class CHxFileData
{
public:
    enum FileType { kUnknown = 0, kDrawing, kTemplate, kExchange };
};
