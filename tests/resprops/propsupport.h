// Reading resources in tests: RC text in, property rows out.
#pragma once

#include <string>
#include <vector>

#include "resprops/resourceread.h"
#include "tests/support/memoryhost.h"
#include "tests/support/rows.h"

namespace brelt::test {

inline const char* const kRcFile = "c:\\home\\forms.rc";

// A row in one line, a comma and a blank for each line feed but the last.
inline std::string Flat(const std::string& row) {
  std::string flat;
  for (const char c : row) flat += c == '\n' ? std::string(", ") : std::string(1, c);
  if (!row.empty() && row.back() == '\n') flat.resize(flat.size() - 2);
  return flat;
}

inline std::vector<std::string> Flat(const std::vector<std::string>& rows) {
  std::vector<std::string> flat;
  for (const std::string& row : rows) flat.push_back(Flat(row));
  return flat;
}

// The rows of a resource of kRcFile, or the one line "! " and the message.
inline std::vector<std::string> ReadRows(const std::string& resource, int rowSize = 2048) {
  Rows rows(rowSize);
  GuardedBuffer error(1024);
  resprops::ResourceRead(kRcFile, resource.c_str(), rows.pointers(), rows.count(), rows.size(),
                         error.buffer());
  EXPECT_TRUE(rows.AreGuardsIntact());
  EXPECT_TRUE(error.IsIntact());
  if (error.Text().empty()) return rows.Texts();
  EXPECT_TRUE(rows.AreAllZero()) << "a failed read leaves no row";
  return {"! " + error.Text()};
}

// The same for a resource that is all of the file.
inline std::vector<std::string> ReadRowsOf(const std::string& rcText, const std::string& resource = "Form") {
  ResetHost();
  WriteFile(kRcFile, rcText);
  return ReadRows(resource);
}

// The value of a key in a row; "none" where the row hasn't the key.
inline std::string ValueOf(const std::string& row, const std::string& key) {
  const std::string lines = "\n" + row;
  const std::size_t at = lines.find("\n" + key + "=");
  if (at == std::string::npos) return "none";
  const std::size_t begin = at + key.size() + 2;
  return lines.substr(begin, lines.find('\n', begin) - begin);
}

}  // namespace brelt::test
