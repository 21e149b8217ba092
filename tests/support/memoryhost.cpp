#include "tests/support/memoryhost.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>

namespace brelt::test {
namespace {

struct Node {
  std::string path;  // as it was first written
  std::string bytes = {};
  bool isDirectory = false;
  bool readOnly = false;
  std::optional<std::uint64_t> pretendedSize = {};
};

struct Failure {
  int at = -1;
  bool stay = false;
  int count = 0;

  bool Strikes() {
    const int n = count++;
    return at >= 0 && (n == at || (stay && n > at));
  }
};

struct Range {
  const char* first;
  const char* end;

  bool Touches(const void* memory, std::size_t bytes) const {
    const char* from = static_cast<const char*>(memory);
    return std::less<>()(from, end) && std::less<>()(first, from + bytes);
  }
};

bool AnyTouches(const std::vector<Range>& ranges, const void* memory, std::size_t bytes) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [=](const Range& range) { return range.Touches(memory, bytes); });
}

Range MakeRange(const void* memory, std::size_t bytes) {
  const char* first = static_cast<const char*>(memory);
  return {first, first + bytes};
}

struct State {
  std::map<std::string, std::shared_ptr<Node>> files;
  std::string currentDirectory = "c:\\home";
  std::string programPath = "c:\\program\\test.exe";
  std::map<const void*, std::string> modulePaths;
  Failure allocation;
  Failure file;
  std::vector<std::string> renamedTexts;
  std::vector<Range> unreadable;
  std::vector<Range> unwritable;
  int mostBytes = std::numeric_limits<int>::max();
  int live = 0;
  int open = 0;
};

State& Host() {
  static State state;
  return state;
}

std::string Key(const std::string& path) {
  std::string full = path;
  if (full.size() < 2 || full[1] != ':') full = Host().currentDirectory + "\\" + full;
  for (char& c : full) c = c == '/' ? '\\' : rc::ToLower(c);
  return full;
}

std::shared_ptr<Node> Find(const std::string& path) {
  const auto found = Host().files.find(Key(path));
  return found == Host().files.end() ? nullptr : found->second;
}

}  // namespace

void ResetHost() { Host() = State(); }

void WriteFile(const std::string& path, const std::string& bytes) {
  std::shared_ptr<Node>& node = Host().files[Key(path)];
  if (node == nullptr) node = std::make_shared<Node>(Node{.path = path});
  node->bytes = bytes;
}

std::string ReadFile(const std::string& path) {
  const auto node = Find(path);
  return node == nullptr ? "" : node->bytes;
}

bool FileExists(const std::string& path) { return Find(path) != nullptr; }

void MakeDirectory(const std::string& path) {
  Host().files[Key(path)] = std::make_shared<Node>(Node{.path = path, .isDirectory = true});
}

std::vector<std::string> ListFiles() {
  std::vector<std::string> paths;
  for (const auto& [key, node] : Host().files) paths.push_back(key);
  return paths;
}

void SetReadOnly(const std::string& path, bool readOnly) { Find(path)->readOnly = readOnly; }
void SetCurrentDirectory(const std::string& path) { Host().currentDirectory = path; }
void SetProgramPath(const std::string& path) { Host().programPath = path; }
void SetModulePath(const void* module, const std::string& path) { Host().modulePaths[module] = path; }
void PretendSize(const std::string& path, std::uint64_t size) { Find(path)->pretendedSize = size; }

void LimitReads(int bytes) { Host().mostBytes = bytes; }

const std::vector<std::string>& RenamedTexts() { return Host().renamedTexts; }

void DeclareUnreadable(const void* memory, std::size_t bytes) {
  Host().unreadable.push_back(MakeRange(memory, bytes));
}
void DeclareUnwritable(const void* memory, std::size_t bytes) {
  Host().unwritable.push_back(MakeRange(memory, bytes));
}

void FailAllocation(int n) { Host().allocation = {n, false, 0}; }
int AllocationCount() { return Host().allocation.count; }
int LiveAllocations() { return Host().live; }
void FailFileOperation(int n, bool stay) { Host().file = {n, stay, 0}; }
int FileOperationCount() { return Host().file.count; }
int OpenFiles() { return Host().open; }

}  // namespace brelt::test

namespace brelt::host {

using namespace brelt::test;

struct FileHandle {
  std::shared_ptr<Node> node;
  std::size_t position = 0;
  bool append = false;
};

void* AllocateZeroed(std::size_t bytes) noexcept {
  if (Host().allocation.Strikes()) return nullptr;
  ++Host().live;
  return std::calloc(1, bytes == 0 ? 1 : bytes);
}

void Release(void* block) noexcept {
  --Host().live;
  std::free(block);
}

bool IsReadable(const void* memory, std::size_t bytes) noexcept {
  return bytes == 0 || (memory != nullptr && !AnyTouches(Host().unreadable, memory, bytes));
}

bool IsWritable(void* memory, std::size_t bytes) noexcept {
  return IsReadable(memory, bytes) && (bytes == 0 || !AnyTouches(Host().unwritable, memory, bytes));
}

FileHandle* OpenFile(const char* path, OpenMode mode) noexcept {
  if (Host().file.Strikes()) return nullptr;
  std::shared_ptr<Node> node = Find(path);
  if (node != nullptr && (node->isDirectory || (node->readOnly && mode != OpenMode::kRead))) return nullptr;
  if (node == nullptr && mode == OpenMode::kRead) return nullptr;
  if (node != nullptr && mode == OpenMode::kCreate) return nullptr;
  if (node == nullptr || mode == OpenMode::kReplace) {
    WriteFile(path, "");
    node = Find(path);
  }
  ++Host().open;
  return new FileHandle{node, 0, mode == OpenMode::kAppend};
}

int ReadBytes(FileHandle* file, char* buffer, int size) noexcept {
  if (Host().file.Strikes()) return -1;
  const std::string& bytes = file->node->bytes;
  const std::size_t left = file->position < bytes.size() ? bytes.size() - file->position : 0;
  const std::size_t count = std::min(left, static_cast<std::size_t>(std::min(size, Host().mostBytes)));
  std::memcpy(buffer, bytes.data() + file->position, count);
  file->position += count;
  return static_cast<int>(count);
}

bool SeekFile(FileHandle* file, std::uint64_t offset) noexcept {
  if (Host().file.Strikes()) return false;
  file->position = static_cast<std::size_t>(offset);
  return true;
}

bool WriteBytes(FileHandle* file, const char* bytes, int size) noexcept {
  // A full disk takes a part.
  const bool fails = Host().file.Strikes();
  std::string& content = file->node->bytes;
  const std::size_t count = static_cast<std::size_t>(fails ? size / 2 : size);
  if (file->append) file->position = content.size();
  if (content.size() < file->position + count) content.resize(file->position + count);
  content.replace(file->position, count, bytes, count);
  file->position += count;
  return !fails;
}

bool CloseFile(FileHandle* file) noexcept {
  const bool fails = Host().file.Strikes();
  --Host().open;
  delete file;
  return !fails;
}

bool QueryFileSize(const char* path, std::uint64_t& size) noexcept {
  if (Host().file.Strikes()) return false;
  const auto node = Find(path);
  if (node == nullptr || node->isDirectory) return false;
  size = node->pretendedSize.value_or(node->bytes.size());
  return true;
}

bool RemoveFile(const char* path) noexcept {
  if (Host().file.Strikes()) return false;
  const auto node = Find(path);
  if (node == nullptr || node->isDirectory || node->readOnly) return false;
  Host().files.erase(Key(path));
  return true;
}

bool RenameFile(const char* from, const char* to) noexcept {
  if (Host().file.Strikes()) return false;
  const auto node = Find(from);
  if (node == nullptr || Find(to) != nullptr) return false;
  Host().renamedTexts.push_back(node->bytes);
  Host().files[Key(to)] = node;
  Host().files.erase(Key(from));
  return true;
}

bool CutFile(const char* path, std::uint64_t size) noexcept {
  if (Host().file.Strikes()) return false;
  const auto node = Find(path);
  if (node == nullptr || node->isDirectory || node->readOnly) return false;
  node->bytes.resize(std::min(node->bytes.size(), static_cast<std::size_t>(size)));
  return true;
}

bool CanRewriteFile(const char* path) noexcept {
  if (Host().file.Strikes()) return false;
  const auto node = Find(path);
  return node != nullptr && !node->isDirectory && !node->readOnly;
}

void CurrentDirectory(rc::TextBuffer path) noexcept { path.Assign(Host().currentDirectory); }

void ModulePath(const void* module, rc::TextBuffer path) noexcept {
  const auto found = Host().modulePaths.find(module);
  path.Assign(found == Host().modulePaths.end() ? Host().programPath : found->second);
}

FontChoice DefaultFont() noexcept {
  FontChoice font;
  font.face.Assign("Microsoft Sans Serif");
  font.size = 8;
  return font;
}

}  // namespace brelt::host
