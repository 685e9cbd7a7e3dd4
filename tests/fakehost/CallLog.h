// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/fakehost/FakeFault.h"

#include <QStringList>

#include <stdexcept>

namespace tests {

// The module's calls to the fake host, in order. Adding one returns what is wrong with it. A call named
// in `throwOn` throws std::runtime_error after it has been noted.
class CallLog
{
public:
    Misdeed add(const QString &call)
    {
        const Misdeed misdeed = FakeFault::pass();
        if (isOn)
            calls.append(call);
        if (!throwOn.isEmpty() && call.startsWith(throwOn))
            throw std::runtime_error("the fake host was told to throw");
        return misdeed;
    }
    // The same for a text that takes time to make: `make` returns it, and runs only if it is needed.
    // Otherwise measuring would measure the notes.
    template <class Make> Misdeed addMade(Make make)
    {
        return isOn || !throwOn.isEmpty() ? add(make()) : FakeFault::pass();
    }
    void clear() { calls.clear(); }
    // The noted calls that begin with `prefix`.
    [[nodiscard]] QStringList startingWith(const QString &prefix) const
    {
        QStringList found;
        for (const QString &call : calls) {
            if (call.startsWith(prefix))
                found.append(call);
        }
        return found;
    }

    QStringList calls;
    // False: nothing is noted, for measuring.
    bool isOn = true;
    // Beginning of the calls that throw; empty for none.
    QString throwOn;
};

} // namespace tests
