// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"

#include <atomic>
#include <cstdio>
#include <fstream>
#include <thread>

namespace Korvane {
namespace {

using RemovalRaceTest = FileManagerFixture;

/// Does something over and over while a test removes.
class Meddler {
public:
    explicit Meddler(std::function<void()> work)
        : m_thread([this, meddle = std::move(work)] {
            while (!m_stopped)
                meddle();
        })
    {
    }
    ~Meddler()
    {
        m_stopped = true;
        m_thread.join();
    }

private:
    std::atomic<bool> m_stopped = false;
    std::thread m_thread;
};

TEST_F(RemovalRaceTest, AFolderSwappedForALinkCostsNothingOutside)
{
    const auto outside = m_sentinel.path().parent_path();
    const auto inner = home("item/inner");
    const auto aside = home("aside");
    const auto link = home("link");
    Meddler meddler([&] {
        // Whatever of this fails, since removing goes on meanwhile, changes nothing about what is shown.
        std::error_code ignored;
        std::filesystem::create_directory_symlink(outside, link, ignored);
        std::rename(inner.c_str(), aside.c_str());
        std::rename(link.c_str(), inner.c_str());
        std::remove(inner.c_str());
        std::rename(aside.c_str(), inner.c_str());
    });
    for (int round = 0; round < 2000; ++round) {
        std::error_code ignored;
        for (const char* name : { "item/inner/deep", "item/other" }) {
            std::filesystem::create_directories(home(name), ignored);
            std::ofstream(home(name) / "file") << "x";
        }
        removing(home("item"));
        ASSERT_EQ(m_sentinel.difference(), "") << "in round " << round;
    }
}

TEST_F(RemovalRaceTest, FilesAddedMeanwhileNeitherHangNorEscape)
{
    std::atomic<int> number = 0;
    Meddler meddler([&] {
        const auto path = home("item") / std::to_string(number++ % 5) / std::to_string(number % 50);
        std::error_code ignored;
        std::filesystem::create_directories(path, ignored);
    });
    for (int round = 0; round < 300; ++round) {
        std::filesystem::create_directories(home("item/1/2/3"));
        const std::string failure = removing(home("item"));
        if (failure.empty())
            continue;
        EXPECT_TRUE(failure.starts_with("Directory not empty") || failure.starts_with("No such file")) << failure;
    }
}

} // namespace
} // namespace Korvane
