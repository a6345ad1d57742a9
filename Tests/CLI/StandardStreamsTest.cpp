// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/StandardStreams.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

namespace Korvane {

using namespace std::chrono_literals;

namespace {

/// More than a pipe holds.
const std::string longText(1'000'000, 'x');

/// Standard output that is a pipe, until the end of the test.
class StandardStreamsTest : public testing::Test {
protected:
    void SetUp() override
    {
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        std::fflush(stdout);
        m_former = dup(STDOUT_FILENO);
        m_reader = ends[0];
        ASSERT_EQ(dup2(ends[1], STDOUT_FILENO), STDOUT_FILENO);
        close(ends[1]);
        std::signal(SIGPIPE, SIG_IGN);
        struct sigaction action { };
        action.sa_handler = [](int) {};
        sigaction(SIGUSR1, &action, nullptr);
    }
    void TearDown() override
    {
        dup2(m_former, STDOUT_FILENO);
        close(m_former);
        if (m_reader >= 0)
            close(m_reader);
    }

    /// Reads until the other end is closed.
    std::string readAll() const
    {
        std::string text;
        char buffer[65536];
        for (auto count = read(m_reader, buffer, sizeof buffer); count > 0;
             count = read(m_reader, buffer, sizeof buffer))
            text.append(buffer, static_cast<std::size_t>(count));
        return text;
    }

    /// Writes a long text that nobody reads, while a cancel and so many signals come; whether it was given up.
    bool isGivenUp(const Cancellation& cancellation, int signals)
    {
        const auto writer = pthread_self();
        std::thread other([&, writer] {
            for (int i = 0; i < signals; ++i) {
                std::this_thread::sleep_for(200ms);
                cancellation.cancel();
                pthread_kill(writer, SIGUSR1);
            }
            // Whoever still waits then is let go with an error.
            std::this_thread::sleep_for(400ms);
            close(std::exchange(m_reader, -1));
        });
        bool result = false;
        try {
            StandardStreams::write(longText, cancellation);
        } catch (const CancellationError&) {
            result = true;
        } catch (const std::system_error&) {
            result = false;
        }
        other.join();
        return result;
    }

    int m_reader = -1;
    int m_former = -1;
};

} // namespace

TEST_F(StandardStreamsTest, OneSignalEndsTheWaitForAReader) { EXPECT_TRUE(isGivenUp(Cancellation(), 1)); }

TEST_F(StandardStreamsTest, ReportOfWhatWasDoneBeforeACancelWaitsForItsReader)
{
    const Cancellation cancelled;
    cancelled.cancel();
    EXPECT_FALSE(isGivenUp(cancelled, 0));
}

TEST_F(StandardStreamsTest, FurtherSignalsEndThatWaitToo)
{
    const Cancellation cancelled;
    cancelled.cancel();
    EXPECT_TRUE(isGivenUp(cancelled, 2));
}

TEST_F(StandardStreamsTest, OutputThatDoesNotWaitIsWaitedFor)
{
    ASSERT_EQ(fcntl(STDOUT_FILENO, F_SETFL, O_NONBLOCK), 0);
    std::string received;
    std::thread reader([&] {
        std::this_thread::sleep_for(100ms);
        received = readAll();
    });
    EXPECT_NO_THROW(StandardStreams::write(longText, {}));
    dup2(m_former, STDOUT_FILENO);
    reader.join();
    EXPECT_EQ(received.size(), longText.size());
}

} // namespace Korvane
