#pragma once
#include "ISystemResourceMonitor.h"
class SystemResourceMonitor : public ISystemResourceMonitor { Q_OBJECT public: SystemResourceMonitor(); };
