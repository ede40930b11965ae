/// @file
/// What both transports share: the latches, and the one way to end a connection.
#include "vapp/connection/TConnectionModule.h"

#include "connection/Limits.h"
#include "platform/ChildProcess.h"

TConnectionModule::TConnectionModule(ConnectionInfo&& info)
    : TConnectionModule(static_cast<const ConnectionInfo&>(info)) {}

TConnectionModule::TConnectionModule(const ConnectionInfo& info) : m_info(info) {
    m_defunctLatch.test_and_set();
    m_workerLatch.test_and_set();
}

TConnectionModule::~TConnectionModule() = default;

void TConnectionModule::Close() {
    Disconnect();
    m_connected = false;
    m_defunctLatch.clear();
    if (m_childProcess == nullptr) return;

    const vapp_connection::Limits& limits = vapp_connection::CurrentLimits();
    m_childProcess->WaitFor(limits.childEnd);
    if (m_childProcess->GetExitStatus().kind == vapp_platform::ExitKind::Running) {
        m_childProcess->Terminate();
        // So that it is collected here; one that is still not gone then is collected at a later start.
        m_childProcess->WaitFor(limits.forcedEnd);
    }
    m_childProcess.reset();
}

bool TConnectionModule::IsDefunct() {
    return !m_defunctLatch.test_and_set();
}

bool TConnectionModule::IsConnected() {
    return m_connected;
}

std::uint32_t TConnectionModule::GetChildProcessID() const {
    return m_childProcessID;
}

bool TConnectionModule::IsWorkerFound() {
    return !m_workerLatch.test_and_set();
}

void TConnectionModule::SetLogCallback(void (*callback)(const CStringU&)) {
    m_logCallback = callback;
}

void TConnectionModule::SetConnected(bool connected) {
    m_connected = connected;
}

void TConnectionModule::SetDefunct() {
    m_defunctLatch.clear();
}

void TConnectionModule::SetWorkerHasFound() {
    m_workerLatch.clear();
}
