#include "resprops/rcfile.h"

namespace brelt::resprops {

void CompleteFileName(const char* rcFile, RcPath& path) noexcept {
  path.Assign(rc::View(rcFile));
  if (!rc::IsBareFileName(rcFile)) return;
  host::Path directory;
  RcPath complete;
  rc::CurrentDirectoryText(directory);
  rc::QualifyFileName(path.c_str(), directory.c_str(), complete);
  if (!complete.IsEmpty()) path = complete;
}

bool IsReadOnlyFile(const char* path) noexcept {
  return rc::FileSizeOf(path) >= 0 && !host::CanRewriteFile(path);
}

}  // namespace brelt::resprops
