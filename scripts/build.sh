#!/usr/bin/env bash
# Builds everything: the DLL with its import library, the samples and the Windows tests in build/win32, the core
# and its tests for this machine in build/native.
. "$(dirname "$0")/lib.sh"
scripts/setup.sh
build_preset native
build_preset win32
