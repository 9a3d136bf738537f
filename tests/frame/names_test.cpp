#include "frame/names.h"

namespace korvane {

static_assert(SameName("FlowCalc", "FLOWCALC") && SameName("", ""));
static_assert(!SameName("dia", "di") && !SameName("", "x") && !SameName("a_", "a-"));
static_assert(!SameName("[", "{") && !SameName("@", "`"));  // neighbours of the letters
static_assert(SameName("\xC4", "\xC4") && !SameName("\xC4", "\xE4"));

}  // namespace korvane
