// The designer's calls as a program has them: real files, another process that holds one open, memory that
// can't be reached.
#include <brelt.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "tests/win32/support/child.h"

namespace brelt::test {
namespace {

constexpr int kRows = 256;
constexpr int kRowSize = 1025;
constexpr const char* kForm =
    "// head\r\nForm DIALOG 1,2,3,4\r\nBEGIN\r\n    LTEXT \"a\",IDC_A,1,2,3,4\r\nEND\r\n\r\n// tail\r\n";

std::string InCurrentDirectory(const std::string& name) {
  char folder[MAX_PATH];
  GetCurrentDirectoryA(sizeof folder, folder);
  return std::string(folder) + "\\" + name;
}

void WriteBytes(const std::string& path, const std::string& bytes) {
  FILE* file = fopen(path.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  fwrite(bytes.data(), 1, bytes.size(), file);
  fclose(file);
}

std::string ReadBytes(const std::string& path) {
  FILE* file = fopen(path.c_str(), "rb");
  if (file == nullptr) return "missing";
  std::string bytes;
  for (int c; (c = fgetc(file)) != EOF;) bytes += static_cast<char>(c);
  fclose(file);
  return bytes;
}

class Rows {
 public:
  Rows() : bytes_(std::size_t{kRows} * kRowSize) {
    for (int i = 0; i < kRows; ++i) pointers_.push_back(&bytes_[static_cast<std::size_t>(i) * kRowSize]);
  }
  char** pointers() { return pointers_.data(); }
  char*& operator[](int row) { return pointers_[static_cast<std::size_t>(row)]; }

 private:
  std::vector<char> bytes_;
  std::vector<char*> pointers_;
};

class ResourcesTest : public ::testing::Test {
 protected:
  void SetUp() override { WriteBytes(path_, kForm); }
  void TearDown() override {
    SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileA(path_.c_str());
  }

  std::string Read(Rows& rows, const char* file = "form.rc") {
    ResourceRead(0, file, "Form", rows.pointers(), kRows, kRowSize, error_, sizeof error_);
    return error_;
  }
  std::string Write(Rows& rows) {
    Rows menu;
    ResourceWrite(0, rows.pointers(), kRows, kRowSize, menu.pointers(), kRows, kRowSize, path_.c_str(),
                  error_, sizeof error_);
    return error_;
  }
  // The messages of all calls that change a file.
  std::vector<std::string> MessagesOfChanges() {
    Rows rows;
    std::vector<std::string> messages;
    Read(rows);
    messages.push_back(Write(rows));
    ResourceDelete(path_.c_str(), "Form", error_, sizeof error_);
    messages.push_back(error_);
    ResourceRename(path_.c_str(), "Form", "Other", error_, sizeof error_);
    messages.push_back(error_);
    ResourceWriteText(0, path_.c_str(), "Form ICON f.ico\n", error_, sizeof error_);
    messages.push_back(error_);
    return messages;
  }

  const std::string path_ = InCurrentDirectory("form.rc");
  const std::string refusal_ = "Cannot modify the following read-only file: " + path_;
  char error_[1024] = "";
};

TEST_F(ResourcesTest, AFormComesBackAsItWasWritten) {
  Rows rows;
  ASSERT_EQ(Read(rows), "");
  EXPECT_STREQ(
      rows[1],
      "ALIGNMENT=0\nBORDERSTYLE=0\nCAPTION=\"a\"\nGROUP=1\nNAME=IDC_A\nPOSITION=1 2 3 4\nTYPEOF=Label\n"
      "VISIBLE=1\n");
  EXPECT_EQ(Write(rows), "");
  EXPECT_EQ(
      ReadBytes(path_),
      "#define IDC_A 100\r\n\r\n// head\r\nForm DIALOG 1,2,3,4\r\nFONT 8,\"Microsoft Sans Serif\"\r\n"
      "STYLE WS_OVERLAPPED\r\nBEGIN\r\n    LTEXT          \"a\",IDC_A,1,2,3,4\r\nEND\r\n\r\n// tail\r\n");
  char output[500];
  ResourceInfo("form.rc", "Controls", "Form", 32, output, sizeof output, error_, sizeof error_);
  EXPECT_STREQ(output, "IDC_A 100 1\n");
  ResourceTypelist("icon", output, sizeof output);
  EXPECT_STREQ(output,
               "NAME=NAME(1:40)\nPICTURE=FILENAME(ico)\nPOSITION=INTEGER[1:4]\nTYPEOF=CONST\n"
               "VISIBLE=INTEGER(1-Yes,0-No)\n");
}

TEST_F(ResourcesTest, ChangesLeaveNoOtherFile) {
  ResourceRename("form.rc", "Form", "Other", error_, sizeof error_);
  EXPECT_STREQ(error_, "");
  ResourceWriteText(0, "form.rc", "New ICON n.ico\n", error_, sizeof error_);
  EXPECT_STREQ(error_, "");
  ResourceDelete("form.rc", "Other", error_, sizeof error_);
  EXPECT_STREQ(error_, "");
  EXPECT_EQ(ReadBytes(path_), "// head\r\n// tail\r\n\r\nNew ICON n.ico\r\n\r\n");
  EXPECT_EQ(GetFileAttributesA("1.tmp"), INVALID_FILE_ATTRIBUTES);
}

TEST_F(ResourcesTest, AppendingTakesAMarkOffTheEnd) {
  WriteBytes(path_, std::string(kForm) + "\x1A");
  ResourceWriteText(0, "form.rc", "New ICON n.ico\n", error_, sizeof error_);
  EXPECT_STREQ(error_, "");
  EXPECT_EQ(ReadBytes(path_), std::string(kForm) + "\r\nNew ICON n.ico\r\n\r\n");
}

TEST_F(ResourcesTest, ARowThatCannotBeWrittenLeavesAllAsTheyWere) {
  Rows rows;
  strcpy(rows[0], "old");
  auto* pages = static_cast<char*>(VirtualAlloc(nullptr, 8192, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
  DWORD before;
  VirtualProtect(pages + 4096, 4096, PAGE_READONLY, &before);
  const std::string refused =
      "Property array is invalid or is the wrong size, it needs space for 256 elements.";
  rows[255] = pages + 4096 - kRowSize + 1;
  EXPECT_EQ(Read(rows), refused);
  EXPECT_STREQ(rows[0], "old");
  rows[255] = reinterpret_cast<char*>(1);
  EXPECT_EQ(Read(rows), refused);
  rows[255] = pages + 4096 - kRowSize;
  EXPECT_EQ(Read(rows), "");
  // What can't be read at all isn't looked at.
  VirtualProtect(pages + 4096, 4096, PAGE_NOACCESS, &before);
  rows[255] = pages + 4096 - kRowSize + 1;
  EXPECT_EQ(Write(rows), "Dialog property array is not valid, it requires 256 rows of 1025 chars each.");
  ResourceRead(0, "form.rc", "Form", reinterpret_cast<char**>(pages + 8000), kRows, kRowSize, error_,
               sizeof error_);
  EXPECT_EQ(error_, refused);
  VirtualFree(pages, 0, MEM_RELEASE);
}

TEST_F(ResourcesTest, AReadOnlyFileIsRefusedByEveryChange) {
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(MessagesOfChanges(), std::vector<std::string>(4, refusal_));
  EXPECT_EQ(ReadBytes(path_), kForm);
}

TEST_F(ResourcesTest, AFolderIsNoFile) {
  CreateDirectoryA("folder.rc", nullptr);
  Rows rows;
  EXPECT_EQ(Read(rows, "folder.rc"),
            "Resource file <" + InCurrentDirectory("folder.rc") + "> is invalid or missing.");
  ResourceWriteText(0, "folder.rc", "New ICON n.ico\n", error_, sizeof error_);
  ResourceDelete("folder.rc", "New", error_, sizeof error_);
  EXPECT_STREQ(error_, "");
  EXPECT_TRUE(RemoveDirectoryA("folder.rc"));
}

// ---- A file that another process holds open ----

TEST_F(ResourcesTest, AFileThatAnotherProcessHoldsOpenIsRefusedByEveryChange) {
  constexpr DWORD kPatience = 20000;
  const NamedEvent held("BreltTestFileIsHeld");
  const NamedEvent release("BreltTestReleaseFile");
  const ChildProcess holder("holdchild.exe", "form.rc BreltTestFileIsHeld BreltTestReleaseFile");
  ASSERT_TRUE(held.IsSetWithin(kPatience));

  EXPECT_EQ(MessagesOfChanges(), std::vector<std::string>(4, refusal_));
  EXPECT_EQ(ReadBytes(path_), kForm);

  release.Set();
  EXPECT_TRUE(holder.EndsWithin(kPatience));
  EXPECT_EQ(holder.ExitCode(), 0u);
  EXPECT_EQ(MessagesOfChanges(),
            (std::vector<std::string>{"", "", "Cannot rename <Form>, it does not exist.", ""}));
}

}  // namespace
}  // namespace brelt::test
