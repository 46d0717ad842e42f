#pragma once

// The lines every benchmark prints, in the one format `make bench` gathers into a table: what
// was measured, the client's figure, the floor's (the same work done with plain Qt in the same
// run), their ratio and the ratio the client must stay under.
namespace BenchTable {

void header();
void section(const char *title);
// Ratio client / floor; "ok" when it is at most maxRatio, no verdict when maxRatio is 0.
void row(const char *what, double client, double floor, const char *unit, double maxRatio);

} // namespace BenchTable
