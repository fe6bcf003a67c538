#include "base/allocator.hpp"
#include "families/umfpack_single/reports.hpp"
#include "families/umfpack_single/umfpack_single.hpp"

namespace quorin::umfpack_single {

void start() noexcept {
  SuiteSparse_config.malloc_func = base::allocate;
  SuiteSparse_config.calloc_func = base::allocate_zeroed;
  SuiteSparse_config.realloc_func = base::reallocate;
  SuiteSparse_config.free_func = base::release;
  SuiteSparse_config.printf_func = print_for_umfpack;
}

}  // namespace quorin::umfpack_single
