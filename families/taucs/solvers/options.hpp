// The option strings of taucs_linsolve: "key=value", or "key=#k" for what stands at opt_arg[k].
#pragma once

namespace quorin::taucs {

// The options with their defaults, in the order of the table of keys.
struct Options {
  void* cilk_context = nullptr;  // accepted, not used; so is
  double cilk_nproc = -1;        // this

  bool approximate_sg = false;  // accepted, not used
  bool amwb = false;
  double amwb_randomseed = 170566;
  double amwb_subgraphs = 1;

  bool factor = true;
  bool symbolic = true;
  bool numeric = true;
  bool llt = false;
  bool lu = false;
  bool indefinite = false;
  bool mf = false;
  bool ll = false;                 // accepted, not used: what mf is not is left-looking
  const char* ordering = nullptr;  // null: "metis", or for LU "colamd"
  double maxdepth = 0;

  bool ooc = false;
  const char* ooc_basename = nullptr;
  void* ooc_iohandle = nullptr;
  double ooc_memory = -1;

  bool cg = false;
  bool minres = false;
  double maxits = 300;
  double convergetol = 1e-6;
};

// Reads each of the strings, which a null ends, against each key; a key keeps the last value that it got. `arguments`
// is what "#k" counts in, ended by a null, too; either array may be null. Texts and pointers are borrowed. A string
// that sets nothing is reported and otherwise ignored:
// - a key whose name is followed by neither "=" nor ".", or a value that is none of its type (of a number, the
//   beginning counts, as scanf reads it);
// - "#k" with no readable k, or beyond the end of `arguments`;
// - no key at all.
// What stands at arguments[k] is a double, an int (0 is false) for a key of true and false, the text itself, or the
// address of a pointer, for which a handle may stand itself.
Options parse_options(const char* const* strings, void* const* arguments);

// A number that the option's value is cut to; 0 for NaN.
int truncated(double value) noexcept;

}  // namespace quorin::taucs
