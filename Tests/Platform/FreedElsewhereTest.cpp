// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FreedElsewhere.h"

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <thread>
#include <vector>

namespace Korvane {
namespace {

using List = FreedElsewhere<std::vector<std::shared_ptr<void>>>;

/// The thread on which a list of this length, gone out of scope, takes its last element apart.
std::thread::id threadThatFrees(std::size_t length)
{
    std::promise<std::thread::id> freed;
    {
        List list;
        list->resize(length - 1);
        list->push_back(std::shared_ptr<void>(nullptr, [&](void*) { freed.set_value(std::this_thread::get_id()); }));
    }
    return freed.get_future().get();
}

TEST(FreedElsewhereTest, AnotherThreadTakesALongListApart)
{
    EXPECT_NE(threadThatFrees(List::most + 1), std::this_thread::get_id());
}

TEST(FreedElsewhereTest, AShortListIsTakenApartAtOnce)
{
    EXPECT_EQ(threadThatFrees(List::most), std::this_thread::get_id());
}

TEST(FreedElsewhereTest, WhatWasMovedOutIsNotFreed)
{
    std::vector<std::shared_ptr<void>> kept;
    {
        List list(std::vector<std::shared_ptr<void>>(List::most + 1, std::make_shared<int>(7)));
        kept = std::move(*list);
    }
    ASSERT_EQ(kept.size(), List::most + 1);
    EXPECT_EQ(*std::static_pointer_cast<int>(kept.front()), 7);
    EXPECT_EQ(kept.front().use_count(), static_cast<long>(List::most + 1));
}

} // namespace
} // namespace Korvane
