// How numerical work on a factor ends.
#pragma once

namespace quorin::sparse {

enum class [[nodiscard]] FactorOutcome{
    kDone,
    kOutOfMemory,
    kTooLarge,             // for the address space; nothing has been allocated
    kNotPositiveDefinite,  // L L^H: a pivot is not positive
    kSingular,             // a pivot is zero, and pivots are not perturbed
    kNotFinite,            // infinite or not a number: an entry of A, or what came of an overflow
    kCannotOpen,           // of the files of panels
    kFileFailed,           // reading or writing failed: the disk is full, or the file is not what was written
    kWrongFormat,          // not a file of ours, of another kind, scalar or version, cut short, or damaged
    kBudgetTooSmall,       // a store of panels has no room for those that are needed at the same time
    kCancelled,            // the progress callback said so
};

}  // namespace quorin::sparse
