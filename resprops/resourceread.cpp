#include "resprops/resourceread.h"

#include "rc/dialog.h"
#include "rc/locate.h"
#include "rc/menuparser.h"
#include "resprops/property.h"
#include "resprops/rcfile.h"

namespace brelt::resprops {
namespace {

// One read: the steps up to the records, each of which leaves a message where it fails.
class Reading {
 public:
  Reading(const char* rcFile, const char* resource, ErrorText& error) noexcept
      : rcFile_(rcFile), resource_(resource), error_(error), text_(rc::kResourceTextSize) {
    CompleteFileName(rcFile, path_);
  }

  void FillRows(const PropertyArray& array) noexcept {
    Locate();
    if (!error_.IsFailure()) Parse();
    if (!error_.IsFailure()) RecordsToProperties(records_.table(), path_.c_str(), resource_, array, error_);
  }

 private:
  void Locate() noexcept;
  void ReportFile() noexcept;
  void Parse() noexcept;
  void CheckClass() noexcept;

  const char* rcFile_;
  const char* resource_;
  ErrorText& error_;
  RcPath path_;
  rc::RecordArray records_;
  host::Block<char> text_;
};

void Reading::Locate() noexcept {
  if (!records_ || !text_) {
    error_.Take("Insufficient memory to read properties for window: ", resource_);
  } else if (!rc::IsFullPathName(path_.c_str())) {
    error_.Take(rc::BadFileNameMessage(rcFile_).view());
  } else if (rc::FileSizeOf(path_.c_str()) < 0) {
    ReportFile();
  } else {
    rc::LineRange lines;
    rc::LocateResource(path_.c_str(), resource_, "DIALOG\nMENU\n", {text_.get(), rc::kResourceTextSize},
                       &lines);
    if (lines.broken) return ReportFile();
    // The name that stands for a listing has no lines of its own.
    if (lines.first != 0) return;
    error_.Take("Resource file does not contain DIALOG or MENU resource named: ", resource_);
  }
}

void Reading::ReportFile() noexcept {
  error_.Format("Resource file <%-.*s> is invalid or missing.", rc::kShownPathLength, path_.c_str());
}

// A resource found under the tail of a keyword is neither of the two, and has no rows.
void Reading::Parse() noexcept {
  rc::FixedText<1023> message;
  if (rc::ResourceTypeIs(text_.get(), "DIALOG")) {
    if (rc::ParseDialog(text_.get(), records_.table(), message)) CheckClass();
  } else if (rc::ResourceTypeIs(text_.get(), "MENU")) {
    rc::ParseMenu(text_.get(), records_.table(), message);
  }
  error_.Take(message.view());
}

void Reading::CheckClass() noexcept {
  switch (FindControlClass(records_[0].className.view())) {
    case ControlClass::kDialog:
    case ControlClass::kEditwindow:
    case ControlClass::kRicheditwindow:
      return;
    default:
      error_.Format("Window <%-.*s> has a class of <%-.*s> which is not allowed.", rc::kNameLength, resource_,
                    32, records_[0].className.c_str());
  }
}

}  // namespace

void ResourceRead(const char* rcFile, const char* resource, char** rows, int rowCount, int rowSize,
                  rc::TextBuffer error) noexcept {
  ErrorText errorText(error);
  if (!errorText.IsWanted()) return;
  const PropertyArray array{rows, rowCount, rowSize};
  const bool cleared = array.Clear();
  if (rc::IsEmpty(rcFile) || rc::IsEmpty(resource)) {
    errorText.Take("Dialog or Window strings are invalid or empty");
  } else if (!cleared || !array.HasRightCount()) {
    errorText.Format("Property array is invalid or is the wrong size, it needs space for %i elements.",
                     kRowCount);
  } else {
    Reading(rcFile, resource, errorText).FillRows(array);
    if (errorText.IsFailure()) array.Clear();
  }
}

}  // namespace brelt::resprops
