#include "families/pardiso/outcomes.hpp"

namespace quorin::pardiso {

Error error_of(sparse::Outcome outcome) {
  switch (outcome) {
    case sparse::Outcome::kDone:
      return Error::kDone;
    case sparse::Outcome::kOutOfMemory:
      return Error::kNoMemory;
    case sparse::Outcome::kBadPattern:
      return Error::kInternal;
    case sparse::Outcome::kTooLarge:
      return Error::kTooLarge;
    case sparse::Outcome::kFailed:
      return Error::kReorderingFailed;
  }
  return Error::kInternal;
}

// The memory that a factor does not fit in is the address space.
Error error_of(sparse::FactorOutcome outcome) {
  switch (outcome) {
    case sparse::FactorOutcome::kDone:
      return Error::kDone;
    case sparse::FactorOutcome::kOutOfMemory:
    case sparse::FactorOutcome::kTooLarge:
      return Error::kNoMemory;
    case sparse::FactorOutcome::kNotPositiveDefinite:
    case sparse::FactorOutcome::kSingular:
    case sparse::FactorOutcome::kNotFinite:
      return Error::kNumericFailed;
    case sparse::FactorOutcome::kCannotOpen:
      return Error::kCannotOpen;
    case sparse::FactorOutcome::kFileFailed:
      return Error::kFileFailed;
    case sparse::FactorOutcome::kBudgetTooSmall:
      return Error::kCoreTooSmall;
    case sparse::FactorOutcome::kWrongFormat:
      return Error::kWrongFile;
    case sparse::FactorOutcome::kCancelled:
      return Error::kInternal;
  }
  return Error::kInternal;
}

Error error_of(sparse::MatchingOutcome outcome) {
  switch (outcome) {
    case sparse::MatchingOutcome::kDone:
      return Error::kDone;
    case sparse::MatchingOutcome::kStructurallySingular:
      return Error::kMatchingFailed;
    case sparse::MatchingOutcome::kNotFinite:
      return Error::kNumericFailed;
    case sparse::MatchingOutcome::kOutOfMemory:
      return Error::kNoMemory;
    case sparse::MatchingOutcome::kTooLarge:
      return Error::kTooLarge;
    case sparse::MatchingOutcome::kFailed:
      return Error::kReorderingFailed;
    case sparse::MatchingOutcome::kBadPattern:
      return Error::kInternal;
  }
  return Error::kInternal;
}

}  // namespace quorin::pardiso
