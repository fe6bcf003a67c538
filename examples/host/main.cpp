// A host program: loads the library by name, solves real work with it, and holds every result against a known answer.
#include <cstdio>
#include <string_view>

#include "examples/host/library.hpp"
#include "examples/host/report.hpp"

namespace {

struct Rows {
  std::string_view families;  // each between spaces
  void (*run)(const demo::Library&, demo::Report&);
};

constexpr Rows kRows[] = {
    {" services ", demo::services_rows}, {" blas ", demo::blas_rows},
    {" lapack ", demo::lapack_rows},     {" signal ", demo::signal_rows},
    {" rci ", demo::rci_rows},           {" trust_region jacobi pack ", demo::least_squares_rows},
    {" slap ", demo::slap_rows},         {" amos ", demo::amos_rows},
    {" umfpack ", demo::umfpack_rows},   {" pardiso ", demo::pardiso_rows},
    {" taucs ", demo::taucs_rows},       {" taucs ", demo::taucs_solver_rows},
    {" feast ", demo::feast_rows},
};

bool is_of(const Rows& rows, std::string_view family) {
  const auto place = rows.families.find(family);
  return place != std::string_view::npos && rows.families[place - 1] == ' ' &&
         rows.families[place + family.size()] == ' ';
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view family = count > 1 ? arguments[1] : "";
  const demo::Library library = demo::load_library();
  demo::Report report;
  std::printf("%-52s %-22s %9s %9s %10s\n", "what", "size", "error", "bound", "time [ms]");
  for (const Rows& rows : kRows) {
    if (family.empty() || is_of(rows, family)) rows.run(library, report);
  }
  if (report.rows() == 0) {
    std::printf("No family is called '%s'. There are:", arguments[1]);
    std::string_view last;
    for (const Rows& rows : kRows) {
      if (rows.families != last) std::printf("%.*s", static_cast<int>(rows.families.size()) - 1, rows.families.data());
      last = rows.families;
    }
    std::printf("\n");
  }
  std::printf("\n%d rows, %d failed\n", report.rows(), report.failures());
  return report.rows() > 0 && report.failures() == 0 ? 0 : 1;
}
