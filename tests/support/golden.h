// Expected results of more than a few lines, kept as files beside the tests.
#pragma once

#include <string>
#include <vector>

namespace brelt::test {

// A file of this machine, not of the core's host; false when it can't be read.
bool LoadBytes(const std::string& path, std::string& bytes);

// The path of a file of the project, from its root.
std::string ProjectPath(const std::string& name);

// The files of a folder whose name has one of the extensions, sorted; none when there is no such folder.
std::vector<std::string> ListFolder(const std::string& folder, const std::vector<std::string>& extensions);

// Where RC files that other people wrote are: the folder that BRELT_CORPUS names, or ../shared/corpus beside
// the project.
std::string CorpusFolder();

// Expects that text equals a file of the project byte for byte. Otherwise what it is stands in a file with
// .new behind the name, beside the expected one, to be looked at and, if it is right, to take its place.
void ExpectGolden(const std::string& name, const std::string& text);

}  // namespace brelt::test
