// Round trips: what the writer makes of records and rows, the readers must read back as it was, up to what is
// lost by design. Checks give an empty text where a trip is right, and otherwise what went wrong; input that
// no reader takes is no failure.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace brelt::test {

// Pieces of an input, so that it can be made smaller piece by piece.
using Parts = std::vector<std::string>;
using Check = std::function<std::string(const Parts&)>;

// The header and statements of a DIALOG, and a part for each control.
std::string CheckDialogTrip(const Parts& parts);
// A part for each line of a MENU without its header, BEGIN and END.
std::string CheckMenuTrip(const Parts& parts);
// The rows of a property array for a DIALOG, and for a MENU.
std::string CheckDialogRows(const Parts& rows);
std::string CheckMenuRows(const Parts& rows);

// How many trips the checks have made and compared so far, so that nobody takes input that no reader takes
// for success.
int ComparedTrips();

// The smallest input that still fails a check, found by leaving out parts and pieces of them.
Parts Shrunk(Parts parts, const Check& check);

}  // namespace brelt::test
