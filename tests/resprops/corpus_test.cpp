// Each change to each resource of many files in the layouts that people write: what comes out is as it was
// agreed on, and every line that is nobody's business stays.
#include <functional>
#include <set>

#include "rc/dialog.h"
#include "rc/filename.h"
#include "resprops/resourceinfo.h"
#include "resprops/resourcewrite.h"
#include "tests/resprops/linediff.h"
#include "tests/resprops/propsupport.h"
#include "tests/resprops/surgerysupport.h"
#include "tests/support/golden.h"

namespace brelt::resprops {
namespace {

using test::kRc;
using Texts = std::vector<std::string>;

constexpr const char* kHeader = "c:\\home\\resource.h";
constexpr const char* kReplacement = " MENU\nBEGIN\n    MENUITEM \"x\",ID_X\nEND\n";
constexpr const char* kAddition = "Added ICON \"added.ico\"\nEND\n";

// A file of a corpus and the header it may name.
struct Input {
  std::string name;
  std::string text;
  std::string header;
};

// ---- What the lines of a file are ----

struct Piece {
  std::string text;  // without its line end
  bool hasLineFeed = false;
};

std::vector<Piece> PiecesOf(const std::string& path) {
  std::vector<Piece> pieces;
  rc::LineReader reader(path.c_str());
  rc::Line line;
  while (reader.IsOpen() && reader.Next(line)) {
    std::string text(line.text, static_cast<std::size_t>(line.length));
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    pieces.push_back({text, line.HasLineFeed()});
  }
  return pieces;
}

// The bytes of a file of these pieces, and behind them what stood behind the mark that ends the text.
std::string BytesOf(const std::vector<Piece>& pieces, const std::string& original) {
  std::string bytes;
  bool isOpen = false;
  for (const Piece& piece : pieces) {
    const bool endsLongLine = isOpen && piece.text.empty();
    if (isOpen && !endsLongLine) bytes += "\r\n";
    bytes += piece.text;
    isOpen = true;
    if (piece.hasLineFeed) {
      bytes += "\r\n";
      isOpen = false;
    }
  }
  if (isOpen) bytes += "\r\n";
  const std::size_t mark = original.find('\x1A');
  return mark == std::string::npos || mark + 1 == original.size() ? bytes : bytes + original.substr(mark);
}

// ---- One file under all operations ----

class Surgery {
 public:
  explicit Surgery(const Input& input) : input_(input) {
    Reset();
    pieces_ = PiecesOf(kRc);
    char list[65535];
    char error[1024];
    ResourceInfo(kRc, "*", "*", 0, {list, sizeof list}, {error, sizeof error});
    for (const std::string& line : test::Lines(list)) {
      const std::string name = line.substr(0, line.find(','));
      if (std::find(names_.begin(), names_.end(), name) == names_.end()) names_.push_back(name);
    }
  }

  // The result of each operation in words.
  std::string Run(
      const std::function<std::string(const std::string& before, const std::string& after)>& show) {
    show_ = show;
    for (const std::string& name : names_) {
      CheckDelete(name);
      CheckRename(name);
      CheckReplace(name);
      CheckWriteBack(name);
    }
    CheckAppend();
    CheckWriteNew();
    return report_;
  }

 private:
  void Reset() {
    test::ResetHost();
    test::WriteFile(kRc, input_.text);
    if (!input_.header.empty()) test::WriteFile(kHeader, input_.header);
  }

  // Calls an operation on the file as it was, and tells what came of it.
  std::string Apply(const std::string& what, const std::function<std::string()>& operate) {
    Reset();
    const std::string message = operate();
    const std::string after = test::ReadFile(kRc);
    report_ +=
        "[" + what + "]\n" + (message.empty() ? "" : "! " + message + "\n") + show_(input_.text, after);
    for (const std::string& path : test::ListFiles()) {
      if (path != kRc && path != kHeader) report_ += "beside it: " + path + "\n";
    }
    EXPECT_EQ(test::OpenFiles(), 0);
    EXPECT_EQ(test::LiveAllocations(), 0);
    if (!input_.header.empty()) {
      EXPECT_EQ(test::ReadFile(kHeader), input_.header);
    }
    return after;
  }

  rc::LineRange RangeOf(const std::string& name) {
    Reset();
    rc::LineRange lines;
    rc::LocateResource(kRc, name.c_str(), "*", {}, &lines);
    return lines;
  }
  bool IsDialog(const std::string& name) {
    Reset();
    char text[65535];
    rc::LocateResource(kRc, name.c_str(), "*", {text, sizeof text});
    return rc::ResourceTypeIs(text, "DIALOG");
  }

  std::vector<Piece> Without(const rc::LineRange& lines) const {
    std::vector<Piece> pieces = pieces_;
    pieces.erase(pieces.begin() + lines.first - 1, pieces.begin() + lines.last);
    return pieces;
  }

  void CheckDelete(const std::string& name) {
    const bool takesOthers = IsDialog(name);
    const rc::LineRange lines = RangeOf(name);
    const std::string after = Apply("delete " + name, [&] { return test::Delete(name); });
    if (takesOthers) return ExpectOthersKept(name, after);
    std::vector<Piece> pieces = Without(lines);
    const auto behind = pieces.begin() + lines.first - 1;
    if (behind != pieces.end() && behind->text.empty()) pieces.erase(behind);
    EXPECT_EQ(after, BytesOf(pieces, input_.text));
  }

  void CheckRename(const std::string& name) {
    const rc::LineRange lines = RangeOf(name);
    const std::string after = Apply("rename " + name, [&] { return test::Rename(name, "Renamed"); });
    std::vector<Piece> pieces = PiecesOf(kRc);
    ASSERT_EQ(test::Lines(BytesOf(pieces_, input_.text)).size(), test::Lines(after).size());
    std::vector<Piece> expected = pieces_;
    Piece& header = expected[static_cast<std::size_t>(lines.first) - 1];
    const bool isRenamed = after.find("Renamed ") != std::string::npos;
    if (isRenamed) {
      // The name, the keyword and what is behind are words apart by one blank each.
      const std::string rest = header.text.substr(header.text.find_first_not_of(" \t\v\f"));
      const std::size_t nameEnd = rest.find_first_of(" \t\"");
      const std::size_t type = rest.find_first_not_of(" \t", nameEnd);
      std::size_t typeEnd = type;
      while (typeEnd < rest.size() && rc::IsWordChar(rest[typeEnd])) ++typeEnd;
      const std::size_t tail = std::min(rest.find_first_not_of(" \t", typeEnd), rest.size());
      header.text = "Renamed " + rest.substr(type, typeEnd - type) + " " + rest.substr(tail);
    }
    EXPECT_EQ(after, BytesOf(expected, input_.text));
  }

  void CheckReplace(const std::string& name) {
    // A name that isn't the first word of a header can't be given to this call.
    const rc::LineRange lines = RangeOf(name);
    const std::string text = name + kReplacement;
    const std::string after = Apply("replace " + name, [&] { return test::WriteText(text); });
    std::vector<Piece> pieces = Without(lines);
    std::vector<Piece> came;
    for (const std::string& line : test::Lines(text)) came.push_back({line, true});
    pieces.insert(pieces.begin() + lines.first - 1, came.begin(), came.end());
    EXPECT_EQ(after, BytesOf(pieces, input_.text));
  }

  void CheckAppend() {
    const std::string after = Apply("append", [] { return test::WriteText(kAddition); });
    std::string before = input_.text;
    const bool endsInMark = before.ends_with('\x1A') && before.find('\x1A') == before.size() - 1;
    if (endsInMark) before.pop_back();
    EXPECT_EQ(after.substr(0, before.size()), before);
    EXPECT_TRUE(after.ends_with(test::Crlf(std::string(kAddition) + "\n")));
  }

  // Reads a form or a menu into rows and a form back again.
  void CheckWriteBack(const std::string& name) {
    if (!IsDialog(name)) return;
    test::Rows dialog;
    test::Rows menu;
    Reset();
    const std::string message = test::MessageOf([&](rc::TextBuffer error) {
      ResourceRead(kRc, name.c_str(), dialog.pointers(), 256, dialog.size(), error);
    });
    if (!message.empty()) {
      report_ += "[read " + name + "]\n! " + message + "\n";
      return;
    }
    menu.Fill({});
    const std::string menuName = test::ValueOf(dialog.Text(0), "MENU");
    if (!menuName.empty()) {
      const std::string menuMessage = test::MessageOf([&](rc::TextBuffer error) {
        ResourceRead(kRc, menuName.c_str(), menu.pointers(), 256, menu.size(), error);
      });
      if (!menuMessage.empty()) report_ += "[read " + menuName + "]\n! " + menuMessage + "\n";
    }
    const auto write = [&] {
      return test::MessageOf([&](rc::TextBuffer error) {
        ResourceWrite({dialog.pointers(), 256, dialog.size()}, {menu.pointers(), 256, menu.size()}, kRc,
                      error);
      });
    };
    const std::string after = Apply("write back " + name, write);
    ExpectOthersKept(name, after);
  }

  void CheckWriteNew() {
    static test::Rows dialog(300);
    static test::Rows menu(300);
    dialog.Fill({"BORDERSTYLE=1\nCAPTION=\"New\"\nMENU=NewMenu\nNAME=NewForm\nTYPEOF=Dialog\n",
                 "NAME=IDC_NEW\nPICTURE=\"new.ico\"\nTYPEOF=Icon\n"});
    menu.Fill({"NAME=NewMenu\nPOSITION=0\nTYPEOF=Menuitem\n"});
    const std::string after = Apply("write a new form", [] {
      return test::MessageOf([](rc::TextBuffer error) {
        ResourceWrite({dialog.pointers(), 256, 300}, {menu.pointers(), 256, 300}, kRc, error);
      });
    });
    ExpectOthersKept("", after);
  }

  // The names that go with a form: its own, its menu's, its icons', and so on for each of them that is a
  // form.
  void Collect(const std::string& name, std::set<std::string>& names) {
    std::string folded = name;
    rc::FoldToUpper(folded.data());
    if (name.empty() || !names.insert(folded).second) return;
    Reset();
    char text[65535];
    rc::LocateResource(kRc, name.c_str(), "*", {text, sizeof text});
    if (!rc::ResourceTypeIs(text, "DIALOG")) return;
    rc::RecordArray records;
    rc::FixedText<1023> ignored;
    if (!rc::ParseDialog(text, records.table(), ignored)) return;
    for (int i = 0; i < 256 && !records[i].keyword.IsEmpty(); ++i) {
      Collect(std::string(records[i].menuName.view()), names);
      const bool isIcon = records[i].className.view() == "STATIC" && (records[i].style & 0xF) == 3;
      if (isIcon) Collect(std::string(records[i].text.view()), names);
    }
  }

  // Whether a line includes a header, by whatever marks its name is enclosed.
  static bool IsIncludeOf(std::string_view header, const std::string& line) {
    if (header.empty() || !line.starts_with("#include")) return false;
    const std::size_t begin = line.find_first_not_of(" \t\"<", std::string_view("#include").size());
    return begin != std::string::npos && rc::EqualIgnoreCase(line.substr(begin, header.size()), header);
  }

  // Each line outside the resources that go with a form, the #define lines, the include resource and its
  // #include must still be there, in the same order. Empty lines are looked at by the results that were
  // agreed on.
  void ExpectOthersKept(const std::string& name, const std::string& after) {
    std::set<std::string> names;
    Collect(name, names);
    Reset();
    std::vector<rc::SymbolRecord> symbols(1000);
    rc::SymbolReport report;
    rc::LoadSymbols(kRc, "", 0, symbols, report);
    std::vector<Piece> kept;
    rc::ResourceWalk walk;
    rc::LineReader reader(kRc);
    rc::Line line;
    for (std::int32_t number = 1; reader.IsOpen() && reader.Next(line); ++number) {
      const std::string text(line.text, static_cast<std::size_t>(line.length));
      rc::StripLineComment(line.text);
      walk.Feed(line.text);
      std::string owner(walk.name().view());
      rc::FoldToUpper(owner.data());
      const bool isTaken = walk.IsInside() && names.contains(owner);
      const bool isInInclude = number >= report.includeLines.first && number <= report.includeLines.last;
      const bool isMarked = text.starts_with("#define") || IsIncludeOf(report.includeName.view(), text);
      const Piece& piece = pieces_[static_cast<std::size_t>(number) - 1];
      if (!isTaken && !isInInclude && !isMarked && !piece.text.empty()) kept.push_back(piece);
    }
    const Texts lines = test::Lines(after);
    auto at = lines.begin();
    for (const Piece& piece : kept) {
      at = std::find(at, lines.end(), piece.text);
      if (at == lines.end()) {
        ADD_FAILURE() << "lost, or not in its place: " << piece.text;
        return;
      }
      ++at;
    }
  }

  const Input& input_;
  std::vector<Piece> pieces_;
  Texts names_;
  std::function<std::string(const std::string&, const std::string&)> show_;
  std::string report_;
};

std::string WholeDiff(const std::string& before, const std::string& after) {
  return before == after ? "as it was\n" : test::LineDiff(before, after) + test::Checksum(after) + "\n";
}

// A file of the project with the header beside it, if it has one.
Input LoadInput(const std::string& folder, const std::string& name) {
  Input input{name, "", ""};
  input.text = test::LoadBytes(folder + "/" + name).value_or("");
  input.header = test::LoadBytes(folder + "/" + name.substr(0, name.rfind('.')) + ".h").value_or("");
  return input;
}

std::string OnlyChecksum(const std::string&, const std::string& after) {
  return test::Checksum(after) + "\n";
}

std::string ReportFolder(const std::string& folder, const Texts& names) {
  std::string report;
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    const Input input = LoadInput(folder, name);
    report += "==== " + name + "\n" + Surgery(input).Run(OnlyChecksum);
  }
  return report;
}

TEST(SurgeryCorpus, ComesThroughEachOperationAsAgreed) {
  const std::string folder = test::ProjectPath("tests/surgery");
  const Texts names = test::ListFolder(folder, {".rc"});
  ASSERT_GE(names.size(), 40U);
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    const Input input = LoadInput(folder, name);
    test::ExpectGolden("surgery/" + name + ".txt", Surgery(input).Run(WholeDiff));
  }
}

TEST(SurgeryCorpus, ScriptsForTheReadersComeThroughEachOperationAsAgreed) {
  const std::string folder = test::ProjectPath("tests/scripts");
  const Texts names = test::ListFolder(folder, {".rc"});
  ASSERT_GE(names.size(), 30U);
  test::ExpectGolden("surgery/scripts-for-the-readers.txt", ReportFolder(folder, names));
}

TEST(SurgeryCorpus, OtherPeoplesFilesComeThroughEachOperationAsAgreed) {
  const std::string folder = test::CorpusFolder();
  const Texts names = test::ListFolder(folder, {".rc", ".dlg"});
  if (names.empty()) GTEST_SKIP() << "no scripts of other people at " << folder << " (set BRELT_CORPUS)";
  test::ExpectGolden("surgery/other-peoples-files.txt", ReportFolder(folder, names));
}

TEST(SurgeryCorpus, OfAFileThatIsMissing) {
  test::ResetHost();
  EXPECT_EQ(test::Delete("Main"), "");
  EXPECT_EQ(test::Rename("Main", "Other"), "Resource file <c:\\home\\a.rc> is invalid or missing.");
  EXPECT_TRUE(test::ListFiles().empty());
  EXPECT_EQ(test::WriteText(kAddition), "");
  EXPECT_EQ(test::ReadFile(kRc), test::Crlf(std::string(kAddition) + "\n"));
}

}  // namespace
}  // namespace brelt::resprops
