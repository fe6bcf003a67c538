// The services that concern the library as a whole, as the export table names them.
#pragma once

#include "base/text_output.hpp"

namespace quorin::services {

void set_num_threads(int n) noexcept;
int get_max_threads() noexcept;
int domain_set_num_threads(int n, int domain) noexcept;
int domain_get_max_threads(int domain) noexcept;
void set_dynamic(int flag) noexcept;
int get_dynamic() noexcept;
void set_blocktime(int milliseconds) noexcept;
void free_buffers() noexcept;
void set_text_output(base::TextOutputCallback callback) noexcept;
void xerbla(const char* srname, const int* info, int len) noexcept;

}  // namespace quorin::services
