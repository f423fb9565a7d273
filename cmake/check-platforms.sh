#!/usr/bin/env bash
# Fails when shared code asks which system it runs on or calls one of them: that belongs into files
# with the system's name as suffix, which CMake chooses. Only the fake of a kernel has its headers.
set -euo pipefail
cd "$(dirname "$0")/.."

marks='__linux__|__APPLE__|Q_OS_|TARGET_OS_'
marks+='|/proc/(self|stat|meminfo|cpuinfo|net)|/sys/(class|devices|fs|kernel)'
marks+='|<(linux|mach)/|<sys/(epoll|eventfd|inotify|prctl|statfs|sysctl|sysinfo|timerfd)\.h>'
marks+='|<malloc\.h>|mallinfo|malloc_trim'
if git grep --line-number --untracked --extended-regexp "$marks" -- '*.cpp' '*.h' '*.qml' \
    ':!*_Linux.*' ':!*_Mac.*' ':!SystemResourceMonitor/tests/mach/'; then
    echo 'These lines belong into files named after their system.' >&2
    exit 1
fi
