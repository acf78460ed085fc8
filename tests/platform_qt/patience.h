// How tests wait for what others do: for an event, until a deadline.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <functional>

namespace brimle {

inline constexpr int kPatience = 60'000;  // milliseconds; only a broken machine needs them

inline void waitFor(const std::function<bool()>& condition) {
  ASSERT_TRUE(QTest::qWaitFor(condition, kPatience));
}

}  // namespace brimle
