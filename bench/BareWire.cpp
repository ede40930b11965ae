/// @file
/// No error is expected here, and none is survived.
#include "bench/BareWire.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace connection_bench {

namespace {

using Clock = std::chrono::steady_clock;

struct TBareWorker {
    pid_t process = -1;
    int in = -1;
    int out = -1;
};

pid_t Spawn(const std::string& program, std::vector<char*> environment,
            const posix_spawn_file_actions_t* actions) {
    std::string path = program;
    char* const arguments[] = {path.data(), nullptr};
    environment.push_back(nullptr);
    pid_t process = -1;
    Require(posix_spawn(&process, path.c_str(), actions, nullptr, arguments, environment.data()) == 0,
            "posix_spawn");
    return process;
}

std::vector<char*> OwnEnvironment() {
    std::vector<char*> entries;
    for (char** entry = environ; *entry != nullptr; ++entry)
        entries.push_back(*entry);
    return entries;
}

TBareWorker StartOverSocket(const std::string& program) {
    const BareListener listener;
    std::string address = "TCONNECT_ADDRESS=localhost:" + std::to_string(listener.Port());
    std::vector<char*> environment = OwnEnvironment();
    environment.push_back(address.data());
    TBareWorker worker;
    worker.process = Spawn(program, std::move(environment), nullptr);
    worker.in = worker.out = listener.Accept();
    return worker;
}

TBareWorker StartOverPipes(const std::string& program) {
    int to[2];
    int from[2];
    Require(pipe2(to, O_CLOEXEC) == 0 && pipe2(from, O_CLOEXEC) == 0, "pipe2");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, to[0], 0);
    posix_spawn_file_actions_adddup2(&actions, from[1], 1);
    TBareWorker worker;
    worker.process = Spawn(program, OwnEnvironment(), &actions);
    posix_spawn_file_actions_destroy(&actions);
    close(to[0]);
    close(from[1]);
    worker.in = from[0];
    worker.out = to[1];
    return worker;
}

}  // namespace

void Require(bool holds, const char* what) {
    if (holds) return;
    std::perror(what);
    std::exit(1);
}

BareWire::~BareWire() {
    close(m_in);
    if (m_out != m_in) close(m_out);
}

void BareWire::Send(const char* data, std::size_t size) const {
    while (size > 0) {
        const ssize_t done = write(m_out, data, size);
        Require(done > 0, "write");
        data += done;
        size -= static_cast<std::size_t>(done);
    }
}

std::size_t BareWire::Receive(char* buffer, std::size_t capacity) const {
    const ssize_t got = read(m_in, buffer, capacity);
    Require(got > 0, "read");
    return static_cast<std::size_t>(got);
}

BareListener::BareListener() : m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const name = reinterpret_cast<sockaddr*>(&address);
    Require(bind(m_listener, name, length) == 0 && listen(m_listener, SOMAXCONN) == 0 &&
                getsockname(m_listener, name, &length) == 0,
            "listen");
    m_port = ntohs(address.sin_port);
}

BareListener::~BareListener() {
    close(m_listener);
}

int BareListener::Accept() const {
    const int peer = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    Require(peer >= 0, "accept4");
    return peer;
}

NamedPipes::NamedPipes() {
    const char* const parent = std::getenv("TMPDIR");
    m_folder = std::string(parent != nullptr ? parent : P_tmpdir) + "/benchXXXXXX";
    Require(mkdtemp(m_folder.data()) != nullptr, "mkdtemp");
    Require(mkfifo(ToWorker().c_str(), 0600) == 0 && mkfifo(FromWorker().c_str(), 0600) == 0, "mkfifo");
}

NamedPipes::~NamedPipes() {
    unlink(ToWorker().c_str());
    unlink(FromWorker().c_str());
    rmdir(m_folder.c_str());
}

double SecondsOfBareStart(const std::string& program, bool overSocket) {
    const Clock::time_point begin = Clock::now();
    const TBareWorker worker = overSocket ? StartOverSocket(program) : StartOverPipes(program);
    char keyword[3];
    for (std::size_t have = 0; have < sizeof keyword;) {
        const ssize_t got = read(worker.in, keyword + have, sizeof keyword - have);
        Require(got > 0, "read");
        have += static_cast<std::size_t>(got);
    }
    const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
    close(worker.in);
    if (worker.out != worker.in) close(worker.out);
    Require(waitpid(worker.process, nullptr, 0) == worker.process, "waitpid");
    return seconds;
}

}  // namespace connection_bench
