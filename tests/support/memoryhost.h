// The core's host for tests: files in memory under Windows paths, and memory and file operations that fail
// when told to.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "rc/host.h"

namespace brelt::test {

// Empties the file system, sets the directories back and forgets all failures asked for.
void ResetHost();

// Files. A path without a drive is taken against the current directory; names compare without regard to case.
void WriteFile(const std::string& path, const std::string& bytes);
std::string ReadFile(const std::string& path);  // empty also when there is none
bool FileExists(const std::string& path);
void MakeDirectory(const std::string& path);
std::vector<std::string> ListFiles();
void SetReadOnly(const std::string& path, bool readOnly);
void SetCurrentDirectory(const std::string& path);
void SetProgramPath(const std::string& path);
void SetModulePath(const void* module, const std::string& path);
// What a query for the size of an existing file answers from now on.
void PretendSize(const std::string& path, std::uint64_t size);

// The most bytes that a read of a file gives at once.
void LimitReads(int bytes);

// What each file held when it was renamed, in the order of the renames.
const std::vector<std::string>& RenamedTexts();

// Memory that host::IsReadable and host::IsWritable call bad, besides null. What can't be read can't be
// written.
void DeclareUnreadable(const void* memory, std::size_t bytes);
void DeclareUnwritable(const void* memory, std::size_t bytes);

// Failures. Operations are counted from the call on; the n-th (from 0) fails, and with stay all behind it.
void FailAllocation(int n);
int AllocationCount();
int LiveAllocations();
void FailFileOperation(int n, bool stay = false);
int FileOperationCount();
int OpenFiles();

}  // namespace brelt::test
