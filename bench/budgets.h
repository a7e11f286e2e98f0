#ifndef FITTINGS_BENCH_BUDGETS_H_
#define FITTINGS_BENCH_BUDGETS_H_

/// One row of the printed table. @a row is the name of the benchmark. @a peer describes its peer: the code with which
/// the benchmark is compared.
struct Budget
{
    const char* row;
    const char* peer;
    double most;  ///< the budget: the largest allowed ratio of our time to the peer's
};

constexpr Budget kBudgets[] = {
    {"store/close-window", "bare GKeyFile load + 22 sets + save", 1.3},
    {"store/get-warm", "wxFileConfig kept in memory, plus one stat", 1.0},
    {"store/file-get", "bare GKeyFile load + get", 1.3},
    {"store/file-set", "bare GKeyFile load + set + save", 1.3},
    {"store/100k-load-get-save", "wxFileConfig", 0.12},
    {"config/100k-load", "wxFileConfig", 0.5},
    {"config/100k-write", "wxFileConfig", 0.5},
    {"config/100k-read", "wxFileConfig, which never looks at its file again", 0.5},
    {"config/100k-all", "wxFileConfig, which does not wait for the disk", 0.5},
    {"validate/12", "wxRegEx, compiled once", 0.25},
    {"validate/12-bounds", "wcstod alone", 1.5},
    {"validate/100k", "wxRegEx, compiled once", 0.35},
    {"format/1234567.891", "ICU formatter on decimal text, kept", 0.45},
    {"format/1234567.891-wx", "wxNumberFormatter::ToString", 0.09},
    {"format/100k", "ICU formatter on decimal text, kept", 0.2},
    {"thread/post", "wxEvtHandler::AddPendingEvent of a ready event", 1.2},
    {"thread/run-wait", "detached wxThread, mutex and condition by hand", 1.15},
    {"tree/save-100k", "walk by child cookie copying every label", 7.0},
    {"tree/load-10k", "wxTreeCtrl::Expand of the same items, frozen", 1.5},
    {"colour/paint", "the same primitives with pens and brushes made once", 1.6},
    {"gallery/sum-usr", "du -s", 1.5},
};

/// A row that may be slower than its peer by at most @a mostNs nanoseconds.
struct Extra
{
    const char* row;
    const char* peer;
    double mostNs;
};

constexpr Extra kExtras[] = {
    {"library/load", "dlopen of a library of the same size that does nothing", 1e6},
};

/// Two rows for different numbers of items. The time for one item in @a large may be at most @a most times that in @a
/// small.
struct Growth
{
    const char* large;
    const char* small;
    double items;  ///< the number of items of @a large divided by that of @a small
    double most;
};

constexpr Growth kGrowths[] = {
    {"store/100k-load-get-save", "store/10k-load-get-save", 10, 1.5},
    {"config/100k-load", "config/1k-load", 100, 2.0},
    {"config/100k-read", "config/1k-read", 100, 2.0},
    {"config/100k-write", "config/1k-write", 100, 2.0},
    {"config/100k-flush", "config/1k-flush", 100, 2.0},
    {"config/100k-all", "config/1k-all", 100, 2.0},
    {"validate/100k", "validate/1k", 100, 1.5},
    {"format/100k", "format/1k", 100, 1.5},
    {"tree/save-100k", "tree/save-10k", 10, 2.0},
    {"tree/save-deep-10k", "tree/save-deep-1k", 10, 1.5},
    {"tree/load-10k", "tree/load-1k", 10, 1.5},
    {"thread/post-100k", "thread/post", 10, 1.5},
};

#endif
