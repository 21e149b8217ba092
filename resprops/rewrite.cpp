#include "resprops/rewrite.h"

namespace brelt::resprops {
namespace {

// A folder may hold folders that look like temporary files, and may take no file at all.
constexpr int kMostRefusals = 16;

bool Claim(const char* temp) noexcept { return static_cast<bool>(host::File(temp, host::OpenMode::kCreate)); }

bool MoveAside(const char* path, TempPath& temp) noexcept {
  if (!MakeTempName(path, temp)) return false;
  host::RemoveFile(temp.c_str());
  if (host::RenameFile(path, temp.c_str())) return true;
  temp.Clear();
  return false;
}

}  // namespace

bool MakeTempName(const char* path, TempPath& temp) noexcept {
  const RcPath folder(rc::SplitPath(path).Folder());
  int refusals = 0;
  for (int number = 1; refusals < kMostRefusals; ++number) {
    temp.Format("%s%i.tmp", folder.c_str(), number);
    if (Claim(temp.c_str())) return true;
    if (rc::FileSizeOf(temp.c_str()) < 0) ++refusals;
  }
  temp.Clear();
  return false;
}

Rewrite::Rewrite(const char* path) noexcept : path_(path) {
  isUnchanged_ = !MoveAside(path, temp_);
  if (isUnchanged_) return;
  reader_.emplace(temp_.c_str());
  // A text that can't be read stays where it is, and no empty file takes its name.
  if (reader_->IsOpen()) writer_.emplace(path, host::OpenMode::kReplace);
}

bool Rewrite::Next() noexcept {
  if (!IsOpen() || !reader_->Next(line_)) return false;
  ++number_;
  hasLineFeed_ = line_.HasLineFeed();
  TrimLine(line_);
  return true;
}

void Rewrite::Restart() noexcept {
  number_ = 0;
  if (!IsOpen()) return;
  isBroken_ = isBroken_ || reader_->HasFailed();
  reader_->Seek(0);
}

void Rewrite::KeepAs(std::string_view text) noexcept {
  const bool isBehindOpenLine = isLineOpen_ && kept_ == number_ - 1;
  kept_ = number_;
  // The line feed of a line that fills its pieces comes as a piece of its own, and is no empty line.
  if (!isBehindOpenLine || !IsEmptyLine()) {
    EndLine();
    writer_->WriteBytes(text);
  }
  isLineOpen_ = true;
  if (hasLineFeed_) EndLine();
}

void Rewrite::Write(std::string_view text) noexcept {
  EndLine();
  writer_->Write(text);
}

void Rewrite::EndLine() noexcept {
  if (isLineOpen_) writer_->WriteBytes("\r\n");
  isLineOpen_ = false;
}

// What stands behind the mark that ends a text is no part of it, but belongs to somebody: it goes along as it
// is. A mark with nothing behind it doesn't come back.
bool Rewrite::KeepRest() noexcept {
  const std::uint64_t end = reader_->Offset();
  std::uint64_t size = 0;
  if (!host::QueryFileSize(temp_.c_str(), size)) return false;
  if (size <= end + 1) return true;
  host::File rest(temp_.c_str(), host::OpenMode::kRead);
  if (!rest || !rest.Seek(end)) return false;
  char block[4096];
  int count;
  while ((count = rest.Read(block, sizeof block)) > 0)
    writer_->WriteBytes({block, static_cast<std::size_t>(count)});
  return count == 0;
}

bool Rewrite::IsWhole() noexcept {
  EndLine();
  const bool isRead = !isBroken_ && !reader_->HasFailed() && KeepRest();
  return writer_->Close() && isRead;
}

// Half a file is of no use to anybody.
void Rewrite::PutBack() noexcept {
  host::RemoveFile(path_);
  isUnchanged_ = host::RenameFile(temp_.c_str(), path_);
}

void Rewrite::End() noexcept {
  if (!IsOpen()) return;
  isWhole_ = IsWhole();
  reader_.reset();
  writer_.reset();
  if (!isWhole_) {
    PutBack();
  } else if (rc::FileSizeOf(path_) >= 1) {
    host::RemoveFile(temp_.c_str());
  }
}

bool Rewrite::Finish(ErrorText& error) noexcept {
  End();
  if (isUnchanged_) error.Take(kReadOnlyMessage, path_);
  return isWhole_;
}

}  // namespace brelt::resprops
