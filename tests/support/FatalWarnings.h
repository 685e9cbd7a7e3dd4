// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// A test fails if Qt prints a warning that the test did not announce.
//
//     void initTestCase() { tests::failOnWarnings(); }
//     void init() { tests::resetWarnings(); }
//     void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }
//
// Warnings announced with QTest::ignoreMessage are not collected.
namespace tests {

// Starts to collect warnings.
void failOnWarnings();
// Forgets the warnings collected so far.
void resetWarnings();
// The warnings collected since then, one per line; empty if there were none.
[[nodiscard]] QString warnings();

} // namespace tests
