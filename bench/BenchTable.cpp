#include "BenchTable.h"

#include <cstdio>

namespace BenchTable {

void header()
{
    std::printf("%-48s %12s %12s %8s %9s\n", "measure", "client", "floor", "ratio", "target");
}

void section(const char *title)
{
    std::printf("-- %s\n", title);
}

void row(const char *what, double client, double floor, const char *unit, double maxRatio)
{
    const double ratio = floor > 0 ? client / floor : 0;
    std::printf("%-48s %9.2f %-2s %9.2f %-2s %7.2fx", what, client, unit, floor, unit, ratio);
    if (maxRatio > 0)
        std::printf("  <= %.2fx  %s", maxRatio, ratio <= maxRatio ? "ok" : "OVER");
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace BenchTable
