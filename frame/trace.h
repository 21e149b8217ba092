// The library's only log: the name of each call, when a program has asked for it.
#pragma once

namespace brelt {

// Writes a line to where SetTrace says: nowhere, the debugger's output, or \trace.txt in the root of the
// current drive, which is opened and closed for each line. If it can't be opened the line is lost.
void TraceCall(const char* text) noexcept;

}  // namespace brelt
