// How a table shares the room that its page gives it.
#pragma once

#include <vector>

namespace orvex::ui {

struct ColumnRoom {
  int Least = 0;  // pixels
  int Rank = 0;   // 0 always stays; of the others the highest goes first
};

// Which columns are shown in so many pixels: those of the highest rank go, the rightmost of equals
// first, until the rest fits or only rank 0 is left.
std::vector<bool> FitColumns(const std::vector<ColumnRoom>& columns, int room);

// The height of each of `rows` rows that share a room, in pixels between the two bounds.
int FitRows(int rows, int room, int least, int most);

}  // namespace orvex::ui
