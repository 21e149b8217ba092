// Changing RC files in tests: the file's text in, the message and the file's text out.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "resprops/surgery.h"
#include "tests/support/guarded.h"
#include "tests/support/memoryhost.h"

namespace brelt::test {

inline const char* const kRc = "c:\\home\\a.rc";

// The text as it stands in a file that was written in text mode.
inline std::string Crlf(const std::string& text) {
  std::string crlf;
  for (const char c : text) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return crlf;
}

// Calls something with an error buffer and gives its message.
template <typename Call>
std::string MessageOf(Call call) {
  GuardedBuffer error(1024);
  call(error.buffer());
  EXPECT_TRUE(error.IsIntact());
  return error.Text();
}

inline std::string Delete(const std::string& name, const char* file = kRc) {
  return MessageOf([&](rc::TextBuffer error) { resprops::ResourceDelete(file, name.c_str(), error); });
}
inline std::string Rename(const std::string& from, const std::string& to, const char* file = kRc) {
  return MessageOf(
      [&](rc::TextBuffer error) { resprops::ResourceRename(file, from.c_str(), to.c_str(), error); });
}
inline std::string WriteText(const std::string& text, const char* file = kRc) {
  return MessageOf([&](rc::TextBuffer error) { resprops::ResourceWriteText(file, text.c_str(), error); });
}

// The host with one file.
inline void SetFile(const std::string& text) {
  ResetHost();
  WriteFile(kRc, text);
}

// The text of a file after a deletion that has no message and leaves no other file.
inline std::string AfterDelete(const std::string& text, const std::string& name) {
  SetFile(text);
  EXPECT_EQ(Delete(name), "");
  EXPECT_EQ(ListFiles().size(), 1U);
  return ReadFile(kRc);
}
inline std::string AfterRename(const std::string& text, const std::string& from, const std::string& to) {
  SetFile(text);
  EXPECT_EQ(Rename(from, to), "");
  EXPECT_EQ(ListFiles().size(), 1U);
  return ReadFile(kRc);
}
inline std::string AfterWriteText(const std::string& text, const std::string& resource) {
  SetFile(text);
  EXPECT_EQ(WriteText(resource), "");
  EXPECT_EQ(ListFiles().size(), 1U);
  return ReadFile(kRc);
}

}  // namespace brelt::test
