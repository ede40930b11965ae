/// @file
/// A sign of life while a call blocks.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Says on standard error, once a second, how long the wait has taken; ends with the object.
class TProgress {
public:
    TProgress();
    TProgress(const TProgress&) = delete;
    TProgress& operator=(const TProgress&) = delete;
    ~TProgress();

private:
    void Run();

    std::mutex m_mutex;
    std::condition_variable m_over;
    bool m_isOver = false;
    std::thread m_thread;
};
