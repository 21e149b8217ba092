#include "frame/systemname.h"

#include "frame/trace.h"
#include "include/brelt.h"

namespace brelt {
namespace {

struct SystemRow {
  bool ntFamily;
  std::uint32_t major;
  std::uint32_t minor;
  const char* name;
};

// Fixed: a version later than these reads "Windows NT", however new the system is.
constexpr SystemRow kSystems[] = {
    {true, 6, 2, "Windows 8"},    {true, 6, 1, "Windows 7"},    {true, 6, 0, "Windows Vista"},
    {true, 5, 2, "Windows 2003"}, {true, 5, 1, "Windows XP"},   {true, 5, 0, "Windows 2000"},
    {false, 4, 0, "Windows 95"},  {false, 4, 10, "Windows 98"}, {false, 4, 90, "Windows ME"},
};

OSVERSIONINFOA QueryVersion() noexcept {
  OSVERSIONINFOA version = {};
  version.dwOSVersionInfoSize = sizeof version;
  GetVersionExA(&version);
  return version;
}

}  // namespace

const char* SystemNameOf(bool ntFamily, std::uint32_t major, std::uint32_t minor) noexcept {
  for (const SystemRow& row : kSystems) {
    if (row.ntFamily == ntFamily && row.major == major && row.minor == minor) return row.name;
  }
  return ntFamily ? "Windows NT" : "Windows";
}

void QuerySystemName(rc::TextBuffer name, std::uint32_t& major, std::uint32_t& minor,
                     std::uint32_t& bits) noexcept {
  const OSVERSIONINFOA version = QueryVersion();
  major = version.dwMajorVersion;
  minor = version.dwMinorVersion;
  bits = 32;
  name.Assign(SystemNameOf((version.dwPlatformId & VER_PLATFORM_WIN32_NT) != 0, major, minor));
}

std::uint32_t SystemMajorVersion() noexcept { return QueryVersion().dwMajorVersion; }

}  // namespace brelt

using namespace brelt;

void __stdcall SystemInfo(char* buffer, int32_t size, uint32_t* major, uint32_t* minor, uint32_t* bits) {
  TraceCall(__func__);
  if (buffer == nullptr || size <= 0 || major == nullptr || minor == nullptr || bits == nullptr) return;
  QuerySystemName({buffer, size}, *major, *minor, *bits);
}
