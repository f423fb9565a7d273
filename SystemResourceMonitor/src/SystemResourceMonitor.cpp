#include "SystemResourceMonitor.h"
SystemResourceMonitor::SystemResourceMonitor() = default;
