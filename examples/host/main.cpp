// A host program: loads the library by name, solves real work with it, and holds every result against a known answer.
#include <cstdio>

#include "examples/host/library.hpp"
#include "examples/host/report.hpp"

int main() {
  const demo::Library library = demo::load_library();
  demo::Report report;
  std::printf("%-52s %-22s %9s %9s %10s\n", "what", "size", "error", "bound", "time [ms]");
  demo::services_rows(library, report);
  demo::blas_rows(library, report);
  demo::lapack_rows(library, report);
  demo::signal_rows(library, report);
  demo::rci_rows(library, report);
  demo::least_squares_rows(library, report);
  demo::slap_rows(library, report);
  demo::amos_rows(library, report);
  demo::umfpack_rows(library, report);
  demo::pardiso_rows(library, report);
  demo::taucs_rows(library, report);
  demo::feast_rows(library, report);
  demo::taucs_solver_rows(library, report);
  std::printf("\n%d rows, %d failed\n", report.rows(), report.failures());
  return report.failures() == 0 ? 0 : 1;
}
