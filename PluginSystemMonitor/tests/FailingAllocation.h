#ifndef FAILINGALLOCATION_H
#define FAILINGALLOCATION_H

/// Makes one allocation of the process fail. The operators new and nothrow new that do so are
/// linked in with this unit.
///
/// The two kinds are counted apart: code under test asks for the memory of an object by nothrow new
/// where a null result is what it looks for, and Qt hardly uses that kind.
class FailingAllocation
{
public:
    enum Kind {
        Throwing, ///< new, which throws std::bad_alloc
        Nothrow,  ///< new (std::nothrow), which gives null
    };

    /// Lets the @p count th allocation of this kind from now on fail, and the others succeed. One
    /// object at a time.
    FailingAllocation(Kind kind, int count);
    ~FailingAllocation();

    FailingAllocation(const FailingAllocation &) = delete;
    FailingAllocation &operator=(const FailingAllocation &) = delete;

    /// Whether the allocation was reached, and so failed.
    static bool happened();

    /// The number of allocations of a kind so far.
    static int counted(Kind kind);
};

#endif
