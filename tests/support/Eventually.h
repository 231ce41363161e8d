// Waits for what comes true only with events. QtTest's own QTRY_ macros tell a failure to QtTest alone: under
// GoogleTest they end the case early and it passes.
#pragma once

#include <QTest>

#include <gtest/gtest.h>

namespace Eventually {

inline constexpr int WaitMs = 10000;

} // namespace Eventually

#define ASSERT_EVENTUALLY(condition)                                                                         \
    ASSERT_TRUE(QTest::qWaitFor([&] { return bool(condition); }, Eventually::WaitMs)) << #condition
