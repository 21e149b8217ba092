// RC text that other people wrote, for other readers: what isn't of this dialect must give the exact message.
#include <gtest/gtest.h>

#include <cctype>
#include <string>

#include "tests/support/golden.h"
#include "tests/support/scriptreport.h"

namespace brelt::rc {
namespace {

class Corpus : public ::testing::TestWithParam<const char*> {};

TEST_P(Corpus, IsReadAsItsGoldenFileSays) {
  const auto bytes = test::LoadBytes(test::CorpusFolder() + "/" + GetParam());
  if (!bytes)
    GTEST_SKIP() << "no scripts of other people at " << test::CorpusFolder() << " (set BRELT_CORPUS)";
  test::ExpectGolden(std::string("corpus/") + GetParam() + ".txt", test::ReportScript(*bytes));
}

std::string NameOf(const ::testing::TestParamInfo<const char*>& info) {
  std::string name = info.param;
  for (char& c : name) c = std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(Scripts, Corpus,
                         ::testing::Values("dialer.rc", "dvdsample.rc", "ipxchat.rc", "sdkdiff.rc",
                                           "spintest.rc", "tablecopy.rc", "winfile-en.dlg", "winfile-ja.dlg",
                                           "winfile-orig-en.rc", "winfile-w31-cs.rc", "winfile-w31-en.rc",
                                           "wtsapi.rc"),
                         NameOf);

}  // namespace
}  // namespace brelt::rc
