// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/od/OdRxModule.h"
#include "sdk/od/OdString.h"

#include <QtGlobal>

#include <stdexcept>

// The smallest possible module object. It counts the calls that it gets. The test reads the
// counts through the exported function stubCalls().
class StubModule : public OdRxModule
{
public:
    struct Calls
    {
        int creations = 0;
        int initializations = 0;
        int endings = 0;
        int deletions = 0;
    };
    static Calls &calls()
    {
        static Calls counted;
        return counted;
    }

    void addRef() override { }
    void release() override { }
    [[nodiscard]] long numRefs() const override { return 0; }
    [[nodiscard]] void *sysData() override { return nullptr; }
    void deleteModule() override
    {
        ++calls().deletions;
        delete this;
    }
    void initApp() override { ++calls().initializations; }
    void uninitApp() override { ++calls().endings; }
    [[nodiscard]] OdString moduleName() const override { return {}; }
};
