// Looks into an RC file and changes it, as a form designer does: through lists of properties. Try it on
// props.rc.
#include <brelt.h>
#include <stdio.h>

#include <string>
#include <vector>

static const char kUsage[] =
    "props list FILE                        the resources\n"
    "props show FILE NAME                   the text of a resource\n"
    "props read FILE NAME                   a DIALOG or MENU as properties\n"
    "props set FILE NAME CONTROL KEY VALUE  changes a property of a DIALOG or of one of its controls\n"
    "props rename FILE NAME NEWNAME         gives a resource another name\n"
    "props delete FILE NAME                 deletes a resource, a DIALOG with its MENU and ICONs\n"
    "props symbols FILE                     the #define lines, with how often each is used\n"
    "FILE is a full path with a drive letter or the name of a file in the current directory.\n";

// The property lists of a resource, one for each of its objects.
class Rows {
 public:
  static const int kCount = 256;
  static const int kSize = 1025;

  Rows() : bytes_(kCount * kSize) {
    for (int i = 0; i < kCount; ++i) pointers_.push_back(&bytes_[i * kSize]);
  }
  char** pointers() { return pointers_.data(); }
  std::string operator[](int row) const { return pointers_[row]; }

  // Whatever stands behind a row's text must be zero.
  void Set(int row, const std::string& text) {
    for (int i = 0; i < kSize; ++i)
      pointers_[row][i] = i < int(text.size()) && i < kSize - 1 ? text[i] : '\0';
  }

 private:
  std::vector<char> bytes_;
  std::vector<char*> pointers_;
};

static char error[1024];

// Each call leaves a message, which is empty on success.
static int Report() {
  if (*error != '\0') fprintf(stderr, "%s\n", error);
  return *error != '\0' ? 1 : 0;
}

static int Ask(const char* file, const char* type, const char* name, int32_t flags) {
  static char output[65536];
  ResourceInfo(file, type, name, flags, output, sizeof output, error, sizeof error);
  printf("%s", output);
  return Report();
}

static int Read(const char* file, const char* name) {
  Rows rows;
  ResourceRead(0, file, name, rows.pointers(), Rows::kCount, Rows::kSize, error, sizeof error);
  for (int i = 0; i < Rows::kCount && !rows[i].empty(); ++i) printf("%s\n", rows[i].c_str());
  return Report();
}

// Where the value of a key stands in a row; npos where the row hasn't the key.
static size_t FindValue(const std::string& row, const std::string& key) {
  const size_t at = ("\n" + row).find("\n" + key + "=");
  return at == std::string::npos ? at : at + key.size() + 1;
}

static std::string Value(const std::string& row, const std::string& key) {
  const size_t at = FindValue(row, key);
  return at == std::string::npos ? "" : row.substr(at, row.find('\n', at) - at);
}

static int SetProperty(const char* file, const char* name, const char* control, const char* key,
                       const char* value) {
  Rows dialog;
  Rows menu;
  ResourceRead(0, file, name, dialog.pointers(), Rows::kCount, Rows::kSize, error, sizeof error);
  if (*error != '\0') return Report();
  // A form is written with its menu, or it loses it.
  const std::string menuName = Value(dialog[0], "MENU");
  if (!menuName.empty()) {
    ResourceRead(0, file, menuName.c_str(), menu.pointers(), Rows::kCount, Rows::kSize, error, sizeof error);
    if (*error != '\0') return Report();
  }
  int row = 0;
  while (row < Rows::kCount && Value(dialog[row], "NAME") != control) ++row;
  if (row == Rows::kCount) return fprintf(stderr, "%s has no control named %s\n", name, control), 1;
  std::string list = dialog[row];
  const size_t at = FindValue(list, key);
  if (at == std::string::npos) {
    char schema[1025];
    ResourceTypelist(Value(list, "TYPEOF").c_str(), schema, sizeof schema);
    return fprintf(stderr, "%s has no %s, but these:\n%s", control, key, schema), 1;
  }
  list.replace(at, list.find('\n', at) - at, value);
  dialog.Set(row, list);
  ResourceWrite(0, dialog.pointers(), Rows::kCount, Rows::kSize, menu.pointers(), Rows::kCount, Rows::kSize,
                file, error, sizeof error);
  return Report();
}

int main(int count, char** words) {
  const std::string verb = count > 1 ? words[1] : "";
  if (verb == "list" && count == 3) return Ask(words[2], "*", "*", 0);
  if (verb == "show" && count == 4) return Ask(words[2], "*", words[3], 0);
  if (verb == "symbols" && count == 3) return Ask(words[2], "Controls", "*", 32);
  if (verb == "read" && count == 4) return Read(words[2], words[3]);
  if (verb == "set" && count == 7) return SetProperty(words[2], words[3], words[4], words[5], words[6]);
  if (verb == "rename" && count == 5) {
    ResourceRename(words[2], words[3], words[4], error, sizeof error);
    return Report();
  }
  if (verb == "delete" && count == 4) {
    ResourceDelete(words[2], words[3], error, sizeof error);
    return Report();
  }
  return fputs(kUsage, stderr), 2;
}
