#pragma once

// One row of the table scripts/bench.sh prints: a measure, its floor measured in the same run,
// both values, their ratio, and the target (a ratio, and for some measures also a limit on the
// value itself). The line starts with "ROW" and its fields are separated by tabs, so the script
// can pick the rows out of each benchmark's own output.
#include <cstdio>

struct TableRow {
    const char *measure;
    const char *floor;
    double value;
    double floorValue;
    const char *unit; // "ms", "MB"
    double maxRatio; // none when 0
    double maxValue = 0; // none when 0
};

inline void printTableRow(const TableRow &row)
{
    const double ratio = row.floorValue > 0 ? row.value / row.floorValue : 0;
    const bool met = ratio > 0 && (row.maxRatio <= 0 || ratio <= row.maxRatio)
                     && (row.maxValue <= 0 || row.value <= row.maxValue);
    char target[64];
    if (row.maxValue > 0 && row.maxRatio > 0)
        std::snprintf(target, sizeof target, "<= %.1fx, <= %g %s", row.maxRatio, row.maxValue, row.unit);
    else if (row.maxValue > 0)
        std::snprintf(target, sizeof target, "<= %g %s", row.maxValue, row.unit);
    else
        std::snprintf(target, sizeof target, "<= %.1fx", row.maxRatio);
    std::printf("ROW\t%s\t%s\t%.4g %s\t%.4g %s\t%.2f\t%s\t%s\n", row.measure, row.floor, row.value, row.unit,
                row.floorValue, row.unit, ratio, target, met ? "met" : "MISSED");
    std::fflush(stdout);
}
