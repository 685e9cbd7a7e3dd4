// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Bindings that a person imports.

#include "launcher/settings/BindingsJson.h"
#include "tests/fuzz/Fuzz.h"

using namespace launcher;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString program = QStringLiteral("librecad");
    Bindings bindings;
    QString problem;
    if (!bindingsFromJson(fuzz::bytes(data, size), program, bindings, problem)) {
        fuzz::check(!problem.isEmpty() && !problem.contains(QLatin1Char('\n')), "a refusal is one line");
        fuzz::check(bindings.eight.isEmpty() && bindings.four.isEmpty(), "a refused text sets nothing");
        return 0;
    }
    const QByteArray text = bindingsToJson(bindings, program);
    Bindings again;
    fuzz::check(bindingsFromJson(text, program, again, problem), "what is exported can be imported");
    fuzz::check(bindingsToJson(again, program) == text, "it means the same bindings");
    return 0;
}
