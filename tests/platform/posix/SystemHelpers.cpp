/// @file
/// Linux says all of it in /proc.
#include "tests/platform/SystemHelpers.h"

#include <dirent.h>
#include <signal.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <thread>

namespace platform_test {

namespace {

// The numbers of the open descriptors, each followed by a blank; the one that reads the folder is left out.
std::string OpenDescriptors() {
    std::string numbers;
    DIR* const folder = opendir("/proc/self/fd");
    for (const dirent* entry = readdir(folder); entry != nullptr; entry = readdir(folder)) {
        const std::string name = entry->d_name;
        if (name[0] != '.' && name != std::to_string(dirfd(folder))) numbers += name + ' ';
    }
    closedir(folder);
    return numbers;
}

// The letter of a process's or a thread's state; NUL for none that is there.
char StateIn(const std::string& path) {
    std::ifstream file(path);
    std::string all;
    std::getline(file, all);
    const auto behindName = all.rfind(')');
    return behindName != std::string::npos ? all.at(behindName + 2) : '\0';
}

std::string StatusLine(const std::string& front) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.starts_with(front)) return line;
    }
    return {};
}

}  // namespace

vapp_platform::NativeHandle StandardStream(int number) {
    return number;
}

int CountOpenHandles() {
    int count = 0;
    for (const char sign : OpenDescriptors())
        count += sign == ' ' ? 1 : 0;
    return count;
}

bool IsRunning(std::uint32_t id) {
    const char state = StateIn("/proc/" + std::to_string(id) + "/stat");
    return state != '\0' && state != 'Z';
}

std::uint32_t OwnThreadId() {
    return static_cast<std::uint32_t>(gettid());
}

bool WaitUntilAsleep(std::uint32_t thread) {
    const std::string path = "/proc/self/task/" + std::to_string(thread) + "/stat";
    char state = StateIn(path);
    for (; state != 'S' && state != '\0'; state = StateIn(path))
        std::this_thread::yield();
    return state == 'S';
}

bool TellsSleep() {
    return true;
}

std::optional<std::int64_t> CountReadCalls() {
    std::ifstream file("/proc/thread-self/io");
    std::string name;
    std::int64_t value = 0;
    while (file >> name >> value) {
        if (name == "syscr:") return value;
    }
    return std::nullopt;
}

void IgnoreRequestsToEnd() {
    signal(SIGTERM, SIG_IGN);
    signal(SIGINT, SIG_IGN);
    signal(SIGHUP, SIG_IGN);
}

std::string AnswerAboutSelf(const std::string& question) {
    if (question == "descriptors") return OpenDescriptors();
    return StatusLine(question);
}

}  // namespace platform_test
