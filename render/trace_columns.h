// Reduction of a series to what a picture of a given width can show. With few samples per
// pixel column every sample is kept; with more, each column keeps only its first, last,
// lowest and highest value, so no spike is lost and the drawing cost follows the picture's
// width instead of the sample count.
#pragma once

#include <vector>

namespace zt::render {

// One drawn step of a trace: a single sample (all four values equal) or a pixel column.
struct TraceSpan {
    double time;  // the sample's time, or the column's centre
    double first;
    double last;
    double low;
    double high;
};

struct TraceWindow {
    double timeFrom = 0;  // the time axis' minimum …
    double timeTo = 0;    // … and maximum
    int columns = 0;      // pixel columns across the axis
    // Above this many visible samples per column, columns are reduced.
    int samplesPerColumn = 3;
    // On/off trains hold each value until the next sample; analog traces are interpolated.
    bool step = false;
};

struct ReducedTrace {
    std::vector<TraceSpan> spans;
    // True when the spans are pixel columns (and the window's edge crossings), false when
    // they are the samples themselves.
    bool perColumn = false;
};

// The spans of the samples (times[i], values[i]), i < count, inside the window, in time
// order, plus the trace's crossing of the window's edges. Samples with a value that is not a
// finite number are left out. `sorted` says the times never decrease; unsorted times are
// only binned.
ReducedTrace reduceTrace(const double* times, const double* values, int count, bool sorted,
                         const TraceWindow& window);

}  // namespace zt::render
