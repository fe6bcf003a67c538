#include <algorithm>
#include <array>
#include <charconv>

#include "families/taucs/dispatch.hpp"
#include "families/taucs/engine_view.hpp"
#include "families/taucs/files/files.hpp"

namespace quorin::taucs {
namespace {

// Text on its way to a file, as "%d " and " %0.17e" write it in the C locale.
class TextWriter {
 public:
  explicit TextWriter(platform::File& file) noexcept : file_(file) {}

  void put(int number) noexcept {
    take(std::to_chars(end_, buffer_.data() + buffer_.size(), number));
    *end_++ = ' ';
  }
  void put(double number, char behind) noexcept {
    take(std::to_chars(end_, buffer_.data() + buffer_.size(), number, std::chars_format::scientific, 17));
    *end_++ = behind;
  }
  // Makes sure that there is room for a line.
  void begin_line() noexcept {
    if (end_ > buffer_.data() + buffer_.size() - kLongestLine) flush();
  }
  // Whether all has been written so far.
  bool flush() noexcept {
    if (!file_.write(buffer_.data(), static_cast<std::size_t>(end_ - buffer_.data()))) is_good_ = false;
    end_ = buffer_.data();
    return is_good_;
  }

 private:
  static constexpr std::size_t kLongestLine = 128;

  void take(std::to_chars_result result) noexcept { end_ = result.ptr; }

  platform::File& file_;
  std::array<char, 4096> buffer_;
  char* end_ = buffer_.data();
  bool is_good_ = true;
};

void put_entry(TextWriter& text, int i, int j, double value) noexcept {
  text.begin_line();
  text.put(i + 1);
  text.put(j + 1);
  text.put(value, '\n');
}
void put_entry(TextWriter& text, int i, int j, Complex value) noexcept {
  text.begin_line();
  text.put(i + 1);
  text.put(j + 1);
  text.put(value.real(), ' ');
  text.put(value.imag(), '\n');
}

template <Element T>
int write_ijv(const CcsMatrix& A, const char* filename) noexcept {
  platform::File file;
  file.open_for_text(filename);
  if (!file) return -1;
  TextWriter text(file);
  const T* const values = A.elements<T>();
  for (int j = 0; j < A.n; ++j) {
    for (int k = A.colptr[j]; k < A.colptr[j + 1]; ++k) {
      const int i = A.rowind[k];
      put_entry(text, i, j, values[k]);
      if (A.has(kSymmetric) && i != j) put_entry(text, j, i, values[k]);
    }
  }
  return text.flush() ? 0 : -1;
}

}  // namespace

std::int32_t ccs_write_ijv(const CcsMatrix* A, const char* filename) noexcept {
  if (A == nullptr || rows_of(*A) == sparse::kNone) return -1;
  return is_complex_or_stop(A->flags, kFilesSource) ? write_ijv<Complex>(*A, filename)
                                                    : write_ijv<double>(*A, filename);
}

}  // namespace quorin::taucs
