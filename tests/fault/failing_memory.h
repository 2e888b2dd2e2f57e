// SQLite's allocations: the n-th one fails.
#pragma once

/// Stands between SQLite and its memory.
class FailingMemory {
public:
    /// Takes its place, which needs SQLite to be without any connection.
    FailingMemory();
    FailingMemory(const FailingMemory &) = delete;
    FailingMemory &operator=(const FailingMemory &) = delete;
    ~FailingMemory() { calm(); }

    enum class Extent { one_allocation, all_from_there_on };

    /// The n-th allocation from now on fails, counted from 1.
    static void fail(int n, Extent extent);

    /// Nothing fails any more.
    /// @return whether the failure had come up
    static bool calm();
};
