// Plans and factors in files: what one process has computed, another uses, bit for bit.
//
// What is read may come from anywhere. It is taken only if it is a plan, or a factor of that plan: then no index leads
// out of an array, whatever the numbers are.
#pragma once

#include "sparse/numeric/checked_file.hpp"
#include "sparse/numeric/factor.hpp"
#include "sparse/numeric/panel_files.hpp"
#include "sparse/symbolic/plan.hpp"

namespace quorin::sparse {

// One after the other in a file, in any order and number; whoever reads gets them in the same order. A failure is the
// file's, too, and lasts. What is read into is as before unless kDone is returned.
class Archive {
 public:
  static FactorOutcome put(FileWriter& file, const Plan& plan);
  // kOutOfMemory, kFileFailed, kWrongFormat.
  static FactorOutcome get(FileReader& file, Plan& plan);

  // A factor without its plan. Panels that are in a store are fetched from it.
  template <Scalar T>
  static FactorOutcome put(FileWriter& file, const Factor<T>& factor);
  // A factor in memory, of this plan and scalar type. kTooLarge as well.
  template <Scalar T>
  static FactorOutcome get(FileReader& file, const Plan& plan, Factor<T>& factor);

  // Makes a whole set of the files in which a factor's panels are: the plan and the rest of the factor go to the index.
  template <Scalar T>
  static FactorOutcome complete(PanelFiles& files, const Factor<T>& factor);
  // Opens such a set. The factor's panels stay in the files, which must outlive it.
  template <Scalar T>
  static FactorOutcome open(const char* base_name, std::uint64_t budget, PanelFiles& files, Plan& plan,
                            Factor<T>& factor);

 private:
  template <Scalar T>
  static void put_frame(FileWriter& file, const Factor<T>& factor);
  template <Scalar T>
  static void get_frame(FileReader& file, const Plan& plan, Factor<T>& factor);
};

}  // namespace quorin::sparse
