// Which columns a view shows first, and how. The whole table is one key away.
#pragma once

#include <string>
#include <vector>

namespace orvex::ui {

enum class CellKind {
  Text,
  Words,    // text, a dash where there is none
  Bold,     // the figure that is read first
  Letter,   // a word by its first letter
  Chip,     // a planet's chip and its name, with the marks of its row
  Lord,     // a chip and the planet's houses, the one that it occupies bold
  Nadi,     // a chip and the houses that its planet signifies, none before the others
  Figures,  // to the right
  Degree,   // a degree of the circle as degree and minute in its sign
  Chips,    // chips alone
  Marks,    // letters in frames
  Heat,     // a count on a ground of four steps
  Ingress,  // a sign that begins here, on a ground
  Age,      // second figures, quiet and to the right
  Code,     // a planet's chip alone, with the marks of its row
  Agents,   // of "RA for SU MO, KE for VE" the chips of the nodes
  Houses,   // figures of houses with the marks of a matter's group
  Lords,    // whether each lord of a period signifies a house
  Tick      // "Yes" as a tick, "No" as a cross
};

struct ColumnPlan {
  std::string Caption;  // as the table has it
  CellKind Kind = CellKind::Text;
  int Least = 0;         // pixels at a text size of 100 per cent
  int Rank = 0;          // 0 always stays; the highest goes first where the room is short
  bool SubLord = false;  // the lord on which the school decides: underlined
};

}  // namespace orvex::ui
