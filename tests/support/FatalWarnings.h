#pragma once

#include <QString>

// Makes every Qt warning that a test did not announce fail that test.
//
//     void initTestCase() { tests::failOnWarnings(); }
//     void init() { tests::resetWarnings(); }
//     void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }
//
// Warnings announced with QTest::ignoreMessage never arrive here.
namespace tests {

// Starts collecting warnings in place of Qt's own handler.
void failOnWarnings();
// Forgets what has been collected.
void resetWarnings();
// What has been collected since, a line each; empty when there was none.
[[nodiscard]] QString warnings();

} // namespace tests
