// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/fakehost/FakeFault.h"

#include <rapidcheck.h>

#include <functional>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

namespace tests {

// One way in which a call goes wrong, for tests that let every call go wrong in every way.
struct Fault
{
    const char *name;
    Misdeed misdeed;
    std::function<void()> act; // what happens inside the call, for Misdeed::Acts

    [[nodiscard]] std::unique_ptr<FakeFault> at(int call) const
    {
        return misdeed == Misdeed::Acts ? std::make_unique<FakeFault>(call, act)
                                        : std::make_unique<FakeFault>(call, misdeed);
    }
};

// The misdeeds that are the same in every test, and then these acts.
inline std::vector<Fault>
faultsWith(const std::vector<std::pair<const char *, std::function<void()>>> &acts)
{
    std::vector<Fault> faults{{"throws", Misdeed::Throws, {}},
                              {"gives nothing", Misdeed::GivesNothing, {}},
                              {"gives too little", Misdeed::GivesTooLittle, {}},
                              {"gives too much", Misdeed::GivesTooMuch, {}}};
    for (const auto &[name, act] : acts)
        faults.push_back({name, Misdeed::Acts, act});
    return faults;
}

// A fault of a list that outlives it, at one call.
struct FaultAt
{
    const Fault *fault;
    int call;

    [[nodiscard]] std::unique_ptr<FakeFault> start() const { return fault->at(call); }
};

inline std::ostream &operator<<(std::ostream &out, const FaultAt &one)
{
    return out << "call " << one.call << ' ' << one.fault->name;
}

// Any of the faults at any of the first `calls` calls.
inline rc::Gen<FaultAt> someFault(const std::vector<Fault> &faults, int calls)
{
    const auto place = rc::gen::inRange<std::size_t>(0, faults.size());
    return rc::gen::map(rc::gen::pair(place, rc::gen::inRange(0, calls)),
                        [&faults](const std::pair<std::size_t, int> &chosen) {
                            return FaultAt{&faults[chosen.first], chosen.second};
                        });
}

} // namespace tests
