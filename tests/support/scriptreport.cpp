#include "tests/support/scriptreport.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "rc/locate.h"
#include "rc/menubuilder.h"
#include "rc/symbols.h"
#include "rc/textkit.h"
#include "tests/support/dump.h"
#include "tests/support/memoryhost.h"
#include "tests/support/menumodel.h"

namespace brelt::test {
namespace {

constexpr const char* kPath = "c:\\home\\script.rc";

std::string Indented(const std::string& lines) {
  std::istringstream in(lines);
  std::string line;
  std::string out;
  while (std::getline(in, line)) out += "  " + line + "\n";
  return out;
}

std::string ReportSymbols(std::vector<rc::SymbolRecord>& symbols) {
  rc::SymbolReport report;
  const int count = rc::LoadSymbols(kPath, nullptr, rc::kCountUses, symbols, report);
  std::string text = "symbols " + std::to_string(count);
  if (report.includeLines.first != 0) {
    text += ", header <" + Visible(report.includeName.view()) + "> in lines " +
            std::to_string(report.includeLines.first) + " to " + std::to_string(report.includeLines.last);
  }
  if (!report.message.IsEmpty()) text += "\n  ! " + Visible(report.message.view());
  return text + "\n" + Indented(DumpSymbols(symbols));
}

std::string ReportBuiltMenu(const char* name, const rc::SymbolIndex& symbols) {
  rc::AcceleratorTable keys;
  rc::Failure fault;
  host::MenuHandle* menu = rc::BuildMenuFromFile(kPath, name, symbols, keys, fault);
  if (menu == nullptr)
    return "  built: ! " + std::to_string(fault.code) + " " + Visible(fault.message.view()) + "\n";
  const std::string built = "  built:\n" + Indented(Indented(DumpMenu(menu))) + "  keys:\n" +
                            Indented(Indented(DumpAccelerators(keys)));
  host::DestroyMenuTree(menu);
  return built;
}

std::string ReportResource(const std::string& name, const std::string& keyword,
                           const rc::SymbolIndex& symbols) {
  std::vector<char> text(rc::kResourceTextSize);
  rc::LineRange lines;
  const rc::TextBuffer buffer(text.data(), rc::kResourceTextSize);
  const int length = rc::LocateResource(kPath, name.c_str(), keyword.c_str(), buffer, &lines);
  std::string report = Visible(name) + " " + Visible(keyword);
  if (length == 0) return report + " hidden by another of its name\n";
  report += " lines " + std::to_string(lines.first) + " to " + std::to_string(lines.last) + "\n";
  if (keyword == "DIALOG") report += Indented(ReadDialog(text.data()));
  if (keyword == "MENU") report += Indented(ReadMenu(text.data())) + ReportBuiltMenu(name.c_str(), symbols);
  if (keyword == "ICON") {
    host::Path file;
    rc::ResourceIconFile(kPath, name.c_str(), file);
    report += "  file <" + Visible(file.view()) + ">\n";
  }
  return report;
}

}  // namespace

std::string ReportScript(const std::string& bytes) {
  ResetHost();
  FailMenu(-1);
  WriteFile(kPath, bytes);
  std::vector<rc::SymbolRecord> symbols(rc::kSymbolCount);
  std::string report = ReportSymbols(symbols);
  const rc::SymbolIndex index(symbols);

  std::vector<char> list(rc::kResourceTextSize);
  rc::LocateResource(kPath, "*", "*", {list.data(), rc::kResourceTextSize});
  rc::LineWalk walk(list.data());
  std::string_view line;
  while (walk.Next(line)) {
    const std::size_t comma = line.find(',');
    report += ReportResource(std::string(line.substr(0, comma)),
                             std::string(line.substr(comma + 1, line.size() - comma - 2)), index);
  }
  EXPECT_EQ(LiveAllocations(), 0);
  EXPECT_EQ(OpenFiles(), 0);
  EXPECT_EQ(LiveMenus(), 0);
  return report;
}

}  // namespace brelt::test
