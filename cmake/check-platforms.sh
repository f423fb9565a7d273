#!/usr/bin/env bash
# Fails when shared code asks which system it runs on or calls one of them: that belongs into files
# with the system's name as suffix, which CMake chooses.
set -euo pipefail
cd "$(dirname "$0")/.."

marks='__linux__|__APPLE__|Q_OS_|TARGET_OS_|/proc/|/sys/|<(linux|mach|sys)/'
folders=(HostFramework TraceLog/src SystemResourceMonitor/src PluginSystemMonitor/src Workbench/src)
if git grep --line-number --untracked --extended-regexp "$marks" -- "${folders[@]}" \
    ':!*_Linux.*' ':!*_Mac.*'; then
    echo 'These lines belong into files named after their system.' >&2
    exit 1
fi
