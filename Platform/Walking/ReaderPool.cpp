// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/ReaderPool.h"

#include "Platform/Walking/DirectoryReader.h"

#include <system_error>
#include <utility>

#include <pthread.h>

namespace Korvane {

namespace {

/// True in a child process that was forked after the pool was made: its threads, and whoever held its lock, are not
/// there. Such a child reads everything by itself.
std::atomic<bool> isForkedChild{ false };

/// Ends the pool with the program, but not that of the parent with a child.
struct PoolOwner {
    PoolOwner()
    {
        pthread_atfork(nullptr, nullptr, [] { isForkedChild = true; });
    }
    ~PoolOwner()
    {
        if (!isForkedChild)
            delete pool;
    }
    PoolOwner(const PoolOwner&) = delete;
    PoolOwner& operator=(const PoolOwner&) = delete;

    ReaderPool* pool = new ReaderPool;
};

} // namespace

ReaderPool& ReaderPool::shared()
{
    static PoolOwner owner;
    return *owner.pool;
}

ReaderPool::ReaderPool() { m_threads.reserve(DirectoryReader::readerCount()); }

ReaderPool::~ReaderPool()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        m_invitations.clear();
    }
    m_invited.notify_all();
    for (auto& thread : m_threads)
        thread.join();
}

void ReaderPool::invite(std::shared_ptr<ReaderJob> job)
{
    if (isForkedChild)
        return;
    {
        const std::lock_guard lock(m_mutex);
        if (isStopping())
            return;
        m_invitations.push_back(std::move(job));
        if (m_invitations.size() > m_idle && m_threads.size() < DirectoryReader::readerCount())
            startThread();
    }
    m_invited.notify_one();
}

void ReaderPool::startThread()
{
    try {
        m_threads.emplace_back([this] { run(); });
    } catch (const std::system_error&) {
        // Out of threads: the walk goes on with those it has, at worst with its own.
    }
}

void ReaderPool::run()
{
    DirectoryReader::prepareThread();
    std::unique_lock lock(m_mutex);
    while (!isStopping()) {
        if (m_invitations.empty()) {
            ++m_idle;
            m_invited.wait(lock, [this] { return isStopping() || !m_invitations.empty(); });
            --m_idle;
            continue;
        }
        auto job = std::move(m_invitations.back());
        m_invitations.pop_back();
        lock.unlock();
        job->help();
        job.reset();
        lock.lock();
    }
}

} // namespace Korvane
