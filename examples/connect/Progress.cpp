/// @file
/// A thread of its own: the call that blocks has the main one.
#include "examples/connect/Progress.h"

#include <cstdio>

TProgress::TProgress() : m_thread([this] { Run(); }) {}

TProgress::~TProgress() {
    {
        const std::lock_guard guard(m_mutex);
        m_isOver = true;
    }
    m_over.notify_one();
    m_thread.join();
}

void TProgress::Run() {
    std::unique_lock lock(m_mutex);
    for (int seconds = 1; !m_over.wait_for(lock, std::chrono::seconds(1), [this] { return m_isOver; });
         ++seconds) {
        std::fprintf(stderr, "connect: waiting for the worker, %d s\n", seconds);
    }
}
