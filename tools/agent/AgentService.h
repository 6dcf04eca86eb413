// AgentService: the agent run by the service manager. It takes its time to start and to stop, as real services do.
#pragma once

namespace agent {

/// True when this process was started by the service manager. Asking is cheap, while trying to be a service costs a program that is none
/// many seconds before the system says no.
[[nodiscard]] bool StartedAsService();

/// Lives as the service until it is stopped.
int RunService();

}  // namespace agent
